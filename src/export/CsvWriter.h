// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/TreeWriter.h"

namespace quorvin {

/// Rows of two fields: a header, then for each file its Extended tree, and its path first where there are
/// several; an empty row between groups. Begins with a byte-order mark, no line feed at the end.
class CsvWriter final : public TreeWriter {
public:
    using TreeWriter::TreeWriter;

private:
    void begin(bool hasOneEntry) override;
    void writeEntry(const ExportEntry &entry, bool isFirst) override;
    void putHeading(const QString &name) override;
    void putParameter(const Term &term, QByteArrayView value) override;
    void putRow(const QString &first, QByteArrayView second);
    void putField(QByteArrayView field);

    bool _hasOneEntry = false;
    int _rows = 0; ///< of the file at hand
};

} // namespace quorvin
