// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportWriter.h"

namespace quorvin {

/// A `file` element for each file, one after the other without a root or a declaration: its streams, section
/// by section, and their items. Texts are escaped as in HTML and otherwise stay
/// as they are, also characters that XML 1.0 has no place for: a reader has to take them out first.
class XmlWriter final : public ExportWriter {
public:
    using ExportWriter::ExportWriter;

private:
    void begin(bool) override { }
    void writeEntry(const ExportEntry &entry, bool isFirst) override;
    void putSection(const ExportSection &section);
    void putItem(const ExportRow &row);
};

} // namespace quorvin
