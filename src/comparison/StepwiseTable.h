// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

namespace quorvin {

/// A table of which each row and each column, but for the first column, shows an entry of a list. It goes
/// from one pair of lists to the next by removals, moves and insertions, and not by a reset: what its views
/// have selected, and the sizes they gave, stay with what is in both.
///
/// To change the lists call, in this order: `changeTo` for both; `removeGone` for both; then put the new
/// lists into place and call `retarget` for both; then `arrange` for both. Main thread.
class StepwiseTable : public QAbstractTableModel {
public:
    int rowCount(const QModelIndex &parent = {}) const final;
    int columnCount(const QModelIndex &parent = {}) const final;

protected:
    struct Change {
        std::vector<int> targets; ///< for each entry shown, where it stands in the new list; -1: nowhere
        std::vector<int> wanted; ///< entries of the new list that are to be shown, ascending
    };

    explicit StepwiseTable(QObject *parent) : QAbstractTableModel(parent) { }

    /// `from` names the entries of the old list, `to` those of the new one; names that are equal are of the
    /// same entry, or, where one comes several times, of the first, second and so on.
    Change changeTo(Qt::Orientation orientation, const QStringList &from, const QStringList &to,
                    std::vector<int> wanted) const;
    /// The list stays, and others of its entries are to be shown.
    Change changeTo(Qt::Orientation orientation, std::vector<int> wanted) const;

    void removeGone(Qt::Orientation orientation, const Change &change);
    void retarget(Qt::Orientation orientation, const Change &change);
    void arrange(Qt::Orientation orientation, const Change &change);

    const std::vector<int> &shownRows() const { return _rows; }
    /// -1 for the first column.
    int entryOfColumn(int column) const;

private:
    void sort(Qt::Orientation orientation);
    void insertMissing(Qt::Orientation orientation, const std::vector<int> &wanted);
    std::vector<int> &entriesOf(Qt::Orientation orientation);
    const std::vector<int> &entriesOf(Qt::Orientation orientation) const;

    std::vector<int> _rows; ///< the entry of each row
    std::vector<int> _columns; ///< of each column behind the first
};

} // namespace quorvin
