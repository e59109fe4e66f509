// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "statistics/CountTable.h"

#include <QAbstractTableModel>

namespace quorvin {

/// A count as a table: what the plot over it shows, and what it cannot. Main thread.
class CountModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Value, Files, Share, Streams, Duration, Size, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// Null: nothing is counted.
    void setTable(CountTablePtr table);
    const CountTablePtr &table() const { return _table; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString text(const CountRow &row, int column) const;

    CountTablePtr _table;
};

} // namespace quorvin
