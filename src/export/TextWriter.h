// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportWriter.h"

namespace quorvin {

/// Plain text: a line naming the program, then for each file its path, a rule of that length and its Extended
/// tree; two empty lines between blocks, no line feed at the end.
class TextWriter final : public ExportWriter {
public:
    using ExportWriter::ExportWriter;

private:
    void begin(bool hasOneEntry) override;
    void writeEntry(const ExportEntry &entry, bool isFirst) override;
};

} // namespace quorvin
