// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QCache>
#include <QIcon>
#include <QObject>
#include <QPixmap>

#include <unordered_set>

namespace quorvin {

/// The small pictures of the list: the cover of a file where it has one, else what stands for its kind.
/// Covers are decoded on a thread of their own, for the rows that are asked for; their file's kind stands in
/// until then. Main thread.
class FileIcons : public QObject {
    Q_OBJECT
public:
    /// The most pictures that are kept; a list shows far fewer at a time.
    static constexpr int kMostPictures = 2000;

    explicit FileIcons(QObject *parent = nullptr);

    struct Shown {
        QIcon icon;
        bool isCover = false;
    };

    /// `record` may be null.
    Shown pictureFor(const FilelistItemPtr &file, const QuorvinDataPtr &record);

Q_SIGNALS:
    /// The cover of that file is ready; whoever shows it asks again.
    void coverReady(const quorvin::FilelistItemPtr &file);

private:
    struct Picture {
        std::weak_ptr<const QuorvinData> record; ///< an address may come back with another record
        QIcon icon; ///< null when the cover cannot be decoded
    };

    void decode(const FilelistItemPtr &file, const QuorvinDataPtr &record);

    QCache<const QuorvinData *, Picture> _pictures;
    std::unordered_set<const QuorvinData *> _underWay;
};

} // namespace quorvin
