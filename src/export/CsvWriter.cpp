// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/CsvWriter.h"

#include "export/Csv.h"
#include "model/Utf8.h"

#include <cctype>

namespace quorvin {

void CsvWriter::begin(bool hasOneEntry)
{
    _hasOneEntry = hasOneEntry;
    out().put(Utilities::UTF8BOMData());
    out().putText(Utilities::csvEscapeAndQuoteArray({QStringLiteral("Parameter"), QStringLiteral("Value")}));
}

void CsvWriter::writeEntry(const ExportEntry &entry, bool isFirst)
{
    out().put(isFirst ? "\n" : "\n,\n");
    _rows = 0;
    if (!_hasOneEntry)
        putRow(entry.filename, {});
    writeTree(entry.data->groups());
}

void CsvWriter::putHeading(const QString &name)
{
    if (_rows >= 2)
        putRow({}, {});
    putRow(name, {});
}

void CsvWriter::putParameter(const Term &term, QByteArrayView value)
{
    putRow(term.label, value);
}

void CsvWriter::putRow(const QString &first, QByteArrayView second)
{
    if (_rows++ > 0)
        out().put("\n");
    putField(first.toUtf8());
    out().put(",");
    putField(second);
}

void CsvWriter::putField(QByteArrayView field)
{
    const bool isPlain
        = !field.isEmpty() && std::isalnum(static_cast<unsigned char>(field.front())) && !field.contains('"');
    if (!isPlain)
        return out().putText(Utilities::csvEscapeAndQuote(textOfUtf8(field)));
    out().put("\"");
    out().put(field);
    out().put("\"");
}

} // namespace quorvin
