// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportEntry.h"
#include "export/OutputBuffer.h"

#include <optional>

class QIODevice;

namespace quorvin {

/// Writes one document of a format, an entry at a time, so that a document of any length takes the memory of
/// a record or two. Text is UTF-8, lines end in a single line feed.
///
/// Call `write` once for each entry, in order, and then `finish`. One thread.
class ExportWriter {
public:
    using Result = OutputBuffer::Result;

    ExportWriter(QIODevice &device, bool skipFilePrivate)
        : _out(device), _skipFilePrivate(skipFilePrivate) { }
    virtual ~ExportWriter() = default;
    ExportWriter(const ExportWriter &) = delete;
    ExportWriter &operator=(const ExportWriter &) = delete;

    /// Some bytes may wait until the next call.
    Result write(const ExportEntry &entry);
    /// Hands on all that waits.
    Result flush() { return _out.flush(); }
    /// Ends the document and hands all of it on. Without an entry it is the empty document of its format.
    Result finish();

protected:
    /// How a document begins may depend on whether it has one entry or any other number.
    virtual void begin(bool hasOneEntry) = 0;
    virtual void writeEntry(const ExportEntry &entry, bool isFirst) = 0;
    /// The error says why there is no document.
    virtual Result end() { return {}; }

    OutputBuffer &out() { return _out; }
    bool skipFilePrivate() const { return _skipFilePrivate; }

private:
    OutputBuffer _out;
    bool _skipFilePrivate;
    bool _isEmpty = true;
    std::optional<ExportEntry> _first; ///< until it is known whether another one follows
};

} // namespace quorvin
