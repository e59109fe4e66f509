// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/StructureWriter.h"

namespace quorvin {

void StructureWriter::writeEntry(const ExportEntry &entry, bool)
{
    const ExportInfo info = entry.data->computeExportInfoWithoutFilePrivate(skipFilePrivate());
    openMap();
    for (const ExportSection &section : info.sections)
        putSection(section);
    putTerm(QStringLiteral("_FileName"));
    putValue(info.filename.toUtf8());
    closeMap();
}

void StructureWriter::putSection(const ExportSection &section)
{
    putTerm(section.name);
    openList();
    for (const ExportStream &stream : section.streams) {
        openList();
        for (const ExportRow &row : stream)
            putRow(row);
        closeList();
    }
    closeList();
}

void StructureWriter::putRow(const ExportRow &row)
{
    openMap();
    putTerm(QStringLiteral("option"));
    putTerm(row.term->key);
    putTerm(QStringLiteral("name"));
    putTerm(row.term->label);
    putTerm(QStringLiteral("value"));
    putValue(row.value);
    closeMap();
}

} // namespace quorvin
