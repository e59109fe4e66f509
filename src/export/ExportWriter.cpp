// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/ExportWriter.h"

namespace quorvin {

ExportWriter::Result ExportWriter::write(const ExportEntry &entry)
{
    if (std::exchange(_isEmpty, false)) {
        _first = entry;
        return {};
    }
    if (_first) {
        begin(false);
        writeEntry(*_first, true);
        _first.reset();
    }
    writeEntry(entry, false);
    return _out.result();
}

ExportWriter::Result ExportWriter::finish()
{
    if (_first) {
        begin(true);
        writeEntry(*_first, true);
        _first.reset();
    } else if (_isEmpty) {
        begin(false);
    }
    return end().and_then([this] { return flush(); });
}

} // namespace quorvin
