// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <sys/types.h>

#include <functional>
#include <memory>

namespace quorvin {

/// A file that appears under its name only when it is complete. It is written under a temporary name in the
/// folder of its target, synced, and renamed into place; until then the old file stays as it was. A file that
/// is replaced hands its mode, owner and extended attributes on. A target that is a symbolic link keeps the
/// link, and what it leads to is replaced, or made. A target that is write-protected is refused. What is no
/// regular file (a FIFO, /dev/null, /dev/fd/3) is written directly.
///
/// What a killed run has left unfinished goes when something is written into its folder again.
///
/// One thread an object.
class AtomicFile {
public:
    enum class Existing { Replace, Keep };
    /// One of many into one folder leaves to its maker what is done once for the folder: `removeLeftovers`
    /// before the first, `syncFolder` after the last.
    enum class Extent { Single, OneOfMany };

    static Expected<std::unique_ptr<AtomicFile>> create(const QString &target,
                                                        Extent extent = Extent::Single);

    AtomicFile(const AtomicFile &) = delete;
    AtomicFile &operator=(const AtomicFile &) = delete;
    /// Removes the temporary file unless `commit` succeeded.
    ~AtomicFile();

    /// Without a buffer: write in large pieces.
    QFile &device() { return _device; }

    /// Puts the file into place. With `Existing::Keep` a file that stands there meanwhile stays, and is the
    /// error EEXIST; another name can then be tried.
    Expected<void> commit(Existing existing = Existing::Replace);
    /// Another name in the folder of the target, for the next `commit`.
    void setName(const QString &name);

    /// Removes temporary files that a killed run of this user has left in the folder.
    static void removeLeftovers(const QString &folder);
    /// Waits until the names in the folder are on the disk.
    static void syncFolder(const QString &folder);

private:
    explicit AtomicFile(Extent extent) : _extent(extent) { }
    Expected<void> openTemporary(const QByteArray &target, mode_t mode);
    Expected<void> openDirectly(const QByteArray &target);

    Extent _extent;
    QFile _device;
    QByteArray _target;
    QByteArray _temporary; ///< "" when written directly, or once in place
    int _slot = -1;
};

/// Makes the file of what `write` puts into its device. When that fails, what stood there stays, and its
/// error is that of the call. Any thread.
Expected<void> writeWhole(const QString &target, const std::function<Expected<void>(QFile &device)> &write);
/// Makes the file of these bytes.
Expected<void> writeWhole(const QString &target, const QByteArray &bytes);

} // namespace quorvin
