// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quorvin {

/// A regular file, open for reading. Anything else (folder, FIFO, socket, device) is refused without being
/// opened, so that opening never blocks and never disturbs a device.
class RegularFile {
public:
    /// Follows symbolic links.
    static Expected<RegularFile> open(const QString &path);

    RegularFile(RegularFile &&other) noexcept;
    RegularFile &operator=(RegularFile &&other) noexcept;
    RegularFile(const RegularFile &) = delete;
    RegularFile &operator=(const RegularFile &) = delete;
    ~RegularFile();

    int descriptor() const { return _descriptor; }
    quint64 size() const { return _size; }
    /// Milliseconds since 1970, rounded down.
    qint64 modificationTime() const { return _modificationTime; }
    /// Absent where the file system does not record it.
    std::optional<qint64> creationTime() const { return _creationTime; }
    /// The path, or that of the file to which the path is a symbolic link.
    QString resolvedPath() const;
    /// A path that leads to this file for as long as it is open, whatever its name.
    QString descriptorPath() const;
    /// Up to `length` bytes from the start of the file.
    QByteArray head(qsizetype length) const;

private:
    explicit RegularFile(int descriptor) : _descriptor(descriptor) { }
    bool readAttributes();

    int _descriptor = -1;
    QString _path; ///< "" for a link
    quint64 _size = 0;
    qint64 _modificationTime = 0;
    std::optional<qint64> _creationTime;
};

/// The text of an error number of the system.
QString systemErrorText(int number);

} // namespace quorvin
