// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "shell/filelist/FileIcons.h"

#include <QAbstractListModel>
#include <QHash>
#include <QTimer>

#include <vector>

namespace quorvin {

/// All files of a window, in the order in which they came; the roles of a row are those of `FilelistRow`.
/// Which of them are shown, and in what order, is the matter of `ArrangedFilelist`. Main thread.
class FilelistModel : public QAbstractListModel {
    Q_OBJECT
public:
    explicit FilelistModel(QObject *parent = nullptr);

    const std::vector<FilelistItemPtr> &files() const { return _files; }
    /// Null beyond the list.
    FilelistItemPtr fileAt(int row) const;
    /// -1 when it is not in the list. Fast however long the list is.
    int rowOf(const FilelistItemPtr &file) const;

    /// Gives the files that were there.
    std::vector<FilelistItemPtr> setFiles(std::vector<FilelistItemPtr> files);
    /// `row` is that of the first new file.
    void insertFiles(int row, const std::vector<FilelistItemPtr> &files);
    /// Each file at its row, which is one of the list as it is then; rows ascend. With many of them here and
    /// there the model is reset.
    void insertFilesAt(const std::vector<int> &rows, const std::vector<FilelistItemPtr> &files);
    /// Takes the files at these rows out; rows are in no order, and none comes twice. With many of them here
    /// and there the model is reset.
    std::vector<FilelistItemPtr> removeFiles(std::vector<int> rows);
    /// Puts the files at these rows, in the order of the list, in front of the row `before`, or behind all
    /// with the number of rows.
    void moveFiles(const std::vector<int> &rows, int before);
    /// What is known of these files has changed. Told with one signal for each run of neighbours; files that
    /// are not in the list count for nothing.
    void filesChanged(const std::vector<FilelistItemPtr> &files);
    void allFilesChanged();
    /// What there is to say of files, by their paths.
    void setMarks(const QHash<QString, QString> &marks);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// Rows can be dragged.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    /// Whoever shows the rows follows each run by itself, in a time that grows with the list.
    void removeRuns(std::vector<int> rows);
    std::vector<FilelistItemPtr> removeScattered(const std::vector<int> &rows);

    QString markOf(const FilelistItem &file) const;

    mutable FileIcons _icons;
    std::vector<FilelistItemPtr> _files;
    mutable QHash<const FilelistItem *, int> _rows; ///< made when asked for; else empty
    QHash<QString, QString> _marks; ///< by paths
    std::vector<FilelistItemPtr> _coversReady; ///< not announced yet
    QTimer _coversTimer;
};

} // namespace quorvin
