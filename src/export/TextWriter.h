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

    void write(const ExportEntry &entry) override;

private:
    bool _hasHeader = false;
};

} // namespace quorvin
