// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "platform/RegularFile.h"
#include "platform/TemporaryFiles.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace quorvin {

/// A hidden folder of this run beside files that are to be rewritten, in which one copy at a time is worked
/// on. It goes with the object, or else when something is written beside it again; then what was published
/// is waited for to be on the disk under its name. One thread.
class WorkFolder {
public:
    /// `parent` is a folder; the error is of the POSIX domain.
    static Expected<std::unique_ptr<WorkFolder>> create(const QString &parent);

    WorkFolder(const WorkFolder &) = delete;
    WorkFolder &operator=(const WorkFolder &) = delete;
    ~WorkFolder();

    const QString &parent() const { return _parent; }
    QString path() const;
    /// The path of the copy.
    QString copy() const;

    /// Makes the copy, with nothing in it.
    Expected<void> makeEmpty();
    /// Makes the copy, which shares the file's blocks where the file system can.
    Expected<void> copyFrom(const RegularFile &file);
    /// What the copy gets before it takes its place.
    struct Place {
        QString target; ///< a path in the parent folder
        QString rightsOf; ///< a file whose owner, mode and extended attributes it takes
        bool keepsTimes = false; ///< those of last access and modification, too
        bool isUnique = false; ///< what stands at the target stays, and the copy gets another name
    };
    /// Syncs the copy and renames it into place, over what stands there. Gives its path.
    Expected<QString> publish(const Place &place);
    /// Drops the copy, if there is one.
    void discard();

private:
    WorkFolder(QString parent, const TemporaryFiles::Opened &opened);
    Expected<void> makeCopy(const std::function<bool(int descriptor)> &fill);
    Expected<QString> moveCopyTo(const Place &place) const;

    QString _parent;
    int _descriptor; ///< of the folder, with its lock
    QByteArray _path;
    int _folderSlot;
    int _copySlot;
    bool _hasPublished = false;
};

} // namespace quorvin
