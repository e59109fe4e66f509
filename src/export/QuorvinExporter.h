// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportTarget.h"

#include <QString>

#include <memory>

class QIODevice;

namespace quorvin {

/// Turns records into documents of one of the six formats. Starts as Text, with private facts.
class QuorvinExporter {
public:
    void setFormat(const QString &format) { _format = format; }
    const QString &format() const { return _format; }
    void setSkipFilePrivate(bool skip) { _skipFilePrivate = skip; }
    bool skipFilePrivate() const { return _skipFilePrivate; }

    /// The extension of a format key, without a dot; "" for an unknown key.
    static QString extensionForExportFormat(const QString &format);

    /// One compound document, written to the device as the entries come.
    std::unique_ptr<ExportTarget> toDevice(QIODevice &device) const;
    /// One compound document in a file, which appears under its name when `finish` succeeds.
    std::unique_ptr<ExportTarget> toFile(const QString &path) const;
    /// One document for each entry, in a folder: named after the entry's file with the format's extension. A
    /// name that is taken gets a number; nothing is overwritten. An error names the file that could not be
    /// written.
    std::unique_ptr<ExportTarget> toFolder(const QString &folder) const;

private:
    QString _format = QStringLiteral("txt");
    bool _skipFilePrivate = false;
};

} // namespace quorvin
