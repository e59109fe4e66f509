// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportWriter.h"

namespace quorvin {

/// A format of maps and lists: for each file a map of its sections, each a list of streams, each a list of
/// parameters with "option", "name" and "value"; and "_FileName", the file's path. The document is that map
/// for one file, and a list of them for any other number.
class StructureWriter : public ExportWriter {
public:
    using ExportWriter::ExportWriter;

protected:
    /// Writes the map of a file.
    void writeEntry(const ExportEntry &entry, bool isFirst) override;

    virtual void openMap() = 0;
    virtual void closeMap() = 0;
    virtual void openList() = 0;
    virtual void closeList() = 0;
    /// A key, or a text that many files share.
    virtual void putTerm(const QString &text) = 0;
    virtual void putValue(QByteArrayView utf8) = 0;

private:
    void putSection(const ExportSection &section);
    void putRow(const ExportRow &row);
};

} // namespace quorvin
