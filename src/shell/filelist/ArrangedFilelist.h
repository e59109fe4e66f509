// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QSortFilterProxyModel>
#include <QTimer>

#include <optional>
#include <utility>
#include <vector>

namespace quorvin {

class FilelistFiltering;
class FilelistModel;

/// The files of a window as it shows them: those of the whole list that no filter hides, in the order of the
/// sorting, or without one in that of the whole list. Its rows are those of the table. Main thread.
class ArrangedFilelist : public QSortFilterProxyModel {
    Q_OBJECT
public:
    /// `whole` must outlive this object.
    explicit ArrangedFilelist(FilelistModel &whole, QObject *parent = nullptr);

    /// Null beyond the list.
    FilelistItemPtr fileAt(int row) const;
    /// -1 when it is hidden, or in no list.
    int rowOf(const FilelistItemPtr &file) const;
    /// -1 beyond the list.
    int rowInWholeList(int row) const;
    const std::vector<FilelistItemPtr> &files() const;

    /// From now on only files that pass are shown. `filter` must outlive this object.
    void setFilter(const FilelistFiltering &filter);
    /// Other files may pass than before: asks for each anew, and then tells by `decided`. A long list is
    /// asked in slices, a turn of the event loop each, and from the beginning if rows come, go or move
    /// meanwhile. While it is being asked it is first asked to its end, and then once more.
    void decide();
    /// What is being asked counts no more.
    void stopDeciding();
    /// Shows the files that were found to pass; nothing changes when none was decided since. With many that
    /// come and go here and there the model is reset.
    void rearrange();

    /// Rows are just being taken out: they are still there, and nobody may lean on them.
    bool isLosingRows() const { return _isLosingRows; }

Q_SIGNALS:
    /// All files have been asked; `rearrange` shows what came of it.
    void decided();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    /// What has been asked so far of the rows of the whole list.
    struct Decisions {
        std::vector<bool> passes;
        /// Those that do, unless a file has changed its mind since.
        std::optional<std::vector<FilelistItemPtr>> passing{std::in_place};
        int runs = 0; ///< of neighbours that come or go
        bool isLastChanged = false;
    };

    void decideAnew();
    void decideSlice();
    void decideRow(int sourceRow);
    void rowsDidChange(int first, int last);

    FilelistModel &_whole;
    const FilelistFiltering *_filter = nullptr;
    Decisions _decisions;
    bool _isStale = false; ///< others may pass than when the first slice was asked
    bool _isArranging = false; ///< what was decided is being shown
    QTimer _sliceTimer; ///< runs while slices are to be asked
    mutable std::optional<std::vector<FilelistItemPtr>> _files; ///< made when asked for
    bool _isLosingRows = false;
};

} // namespace quorvin
