// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportEntry.h"

#include <QStringList>

#include <memory>

class QIODevice;

namespace quorvin {

/// Writes one document of a format, an entry at a time, so that a document of any length takes the memory of
/// one record. Text is UTF-8, lines end in a single line feed. What the device could not take shows in the
/// device's own error.
///
/// Call `write` once for each entry, in order, and then `finish`; with no entry call neither. One thread.
class ExportWriter {
public:
    ExportWriter(QIODevice &device, bool skipFilePrivate) : _device(device), _skipFilePrivate(skipFilePrivate)
    {
    }
    virtual ~ExportWriter() = default;
    ExportWriter(const ExportWriter &) = delete;
    ExportWriter &operator=(const ExportWriter &) = delete;

    virtual void write(const ExportEntry &entry) = 0;
    virtual void finish() { }

protected:
    QIODevice &device() const { return _device; }
    bool skipFilePrivate() const { return _skipFilePrivate; }

private:
    QIODevice &_device;
    bool _skipFilePrivate;
};

/// The keys of the formats there are, in their order. The key is the extension too.
QStringList exportFormats();

/// Null for a key that is not in `exportFormats`.
std::unique_ptr<ExportWriter> makeExportWriter(const QString &format, QIODevice &device,
                                               bool skipFilePrivate);

} // namespace quorvin
