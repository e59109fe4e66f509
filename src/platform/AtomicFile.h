// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QFile>
#include <QString>

#include <memory>

namespace quorvin {

/// A file that appears under its name only when it is complete. It is written under a temporary name in the
/// folder of its target, synced, and renamed into place; until then the old file stays as it was. A file that
/// is replaced hands its mode, owner and extended attributes on. A target that is a symbolic link keeps the
/// link and replaces what it leads to. A target that is write-protected is refused. What is no regular file
/// (a FIFO, /dev/null) is written directly.
///
/// One thread an object.
class AtomicFile {
public:
    enum class Existing { Replace, Keep };

    static Expected<std::unique_ptr<AtomicFile>> create(const QString &target);

    AtomicFile(const AtomicFile &) = delete;
    AtomicFile &operator=(const AtomicFile &) = delete;
    /// Removes the temporary file unless `commit` succeeded.
    ~AtomicFile();

    QFile &device() { return _device; }

    /// Puts the file into place. With `Existing::Keep` a file that stands there meanwhile is an error and
    /// stays.
    Expected<void> commit(Existing existing = Existing::Replace);

private:
    AtomicFile() = default;
    Expected<void> openTemporary(const QByteArray &target);
    Expected<void> openDirectly(const QByteArray &target);

    QFile _device;
    QByteArray _target;
    QByteArray _temporary; ///< "" when written directly, or once in place
    int _slot = -1;
};

} // namespace quorvin
