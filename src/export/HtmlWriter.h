// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/TreeWriter.h"

namespace quorvin {

/// One page: for each file a heading and a table of its Extended tree.
class HtmlWriter final : public TreeWriter {
public:
    using TreeWriter::TreeWriter;

private:
    void begin(bool hasOneEntry) override;
    void writeEntry(const ExportEntry &entry, bool isFirst) override;
    Result end() override;
    void putHeading(const QString &name) override;
    void putParameter(const Term &term, QByteArrayView value) override;
};

} // namespace quorvin
