// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/HtmlWriter.h"

#include "export/HtmlText.h"
#include "model/Utf8.h"

namespace quorvin {

void HtmlWriter::begin(bool)
{
    out().put("<html>\n<head><meta http-equiv='Content-Type' content='text/html; charset=utf-8'>"
              "<title>Quorvin Export</title></head>\n<body>\n");
}

void HtmlWriter::writeEntry(const ExportEntry &entry, bool isFirst)
{
    if (!isFirst)
        out().put("\n<br>\n");
    out().put("<p style='font-size:120%;font-weight:bold;'>");
    out().putText(stringByEncodingHTMLEntities(entry.pathPrefix, true));
    out().put("</p>\n<table cellpadding=1 cellspacing=0>\n");
    writeTree(entry.data->groups());
    out().put("</table>");
}

HtmlWriter::Result HtmlWriter::end()
{
    out().put("\n</body></html>");
    return {};
}

void HtmlWriter::putHeading(const QString &name)
{
    out().put("<tr><th colspan=2 style='text-align:left; padding-top:10px;'>");
    out().putText(stringByEncodingHTMLEntities(name, true));
    out().put("</th></tr>\n");
}

void HtmlWriter::putParameter(const Term &term, QByteArrayView value)
{
    out().put("<tr  style='font-size:90%'>"
              "<td style='white-space:nowrap; font-style:italic; padding-right:18px;'>");
    out().putText(stringByEncodingHTMLEntities(term.label, true));
    out().put(": </td><td>");
    out().putText(stringWithNewLinesAsBRs(stringByEncodingHTMLEntities(textOfUtf8(value), true)));
    out().put("</td></tr>\n");
}

} // namespace quorvin
