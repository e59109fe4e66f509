// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/XmlWriter.h"

#include "export/HtmlText.h"
#include "model/Utf8.h"

namespace quorvin {

void XmlWriter::writeEntry(const ExportEntry &entry, bool isFirst)
{
    if (!isFirst)
        out().put("\n");
    out().put("<file path=\"");
    out().putText(stringByEncodingHTMLEntities(entry.filename, true));
    out().put("\">\n");
    for (const auto &section : entry.data->computeExportInfoWithoutFilePrivate(skipFilePrivate()).sections)
        putSection(section);
    out().put("</file>");
}

void XmlWriter::putSection(const ExportSection &section)
{
    const QString type = stringByEncodingHTMLEntities(section.name, true);
    const QString count = QString::number(section.streams.size());
    int number = 0;
    for (const ExportStream &stream : section.streams) {
        out().putText(QLatin1String(" <stream type=\"") + type + QLatin1String("\" id=\"")
                      + QString::number(++number) + QLatin1String("\" of=\"") + count
                      + QLatin1String("\">\n"));
        for (const ExportRow &row : stream)
            putItem(row);
        out().put(" </stream>\n");
    }
}

void XmlWriter::putItem(const ExportRow &row)
{
    out().put("  <item option=\"");
    out().putText(stringByEncodingHTMLEntities(row.term->key, true));
    out().put("\" name=\"");
    out().putText(stringByEncodingHTMLEntities(row.term->label, true));
    out().put("\">");
    out().putText(stringByEncodingHTMLEntities(textOfUtf8(row.value), true));
    out().put("</item>\n");
}

} // namespace quorvin
