// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "shell/filelist/FileIcons.h"

#include <QAbstractListModel>

#include <vector>

namespace quorvin {

/// The files of a window in the order in which it shows them. Main thread.
class FilelistModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Roles {
        StateRole = Qt::UserRole, ///< a `State`
        PathRole, ///< full path
        ReasonRole, ///< why the file failed, else ""
    };
    enum State { Waiting, Ready, Failed };

    explicit FilelistModel(QObject *parent = nullptr);

    const std::vector<FilelistItemPtr> &files() const { return _files; }
    /// Null beyond the list.
    FilelistItemPtr fileAt(int row) const;
    /// -1 when it is not in the list.
    int rowOf(const FilelistItemPtr &file) const;

    void setFiles(std::vector<FilelistItemPtr> files);
    /// `row` is that of the first new file.
    void insertFiles(int row, const std::vector<FilelistItemPtr> &files);
    /// Takes the files at these rows out; rows are in no order, and none comes twice.
    std::vector<FilelistItemPtr> removeFiles(std::vector<int> rows);
    /// The files of these rows have changed.
    void rowsChanged(int first, int last);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    mutable FileIcons _icons;
    std::vector<FilelistItemPtr> _files;
};

} // namespace quorvin
