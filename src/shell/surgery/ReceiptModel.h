// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "surgery/RemovalReceipt.h"

#include <QAbstractItemModel>
#include <QStringList>

#include <vector>

namespace quorvin {

/// Receipts as a tree: a row for each file with what comes of it, and below it what is kept and why, what
/// goes, and the digests. Main thread.
class ReceiptModel final : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { Name, Outcome, kColumns };

    using QAbstractItemModel::QAbstractItemModel;

    /// `names` are what people know the files by, at least as many as there are receipts. `isPlan`: nothing
    /// of it is done.
    void setReceipts(std::vector<RemovalReceipt> receipts, QStringList names, bool isPlan);
    const std::vector<RemovalReceipt> &receipts() const { return _receipts; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Texts {
        QString name;
        QString outcome;
    };

    const RemovalReceipt &receiptAt(std::size_t row) const { return _receipts[row]; }
    /// Null for the row of a file.
    const RemovalReceipt *receiptAbove(const QModelIndex &item) const;
    Texts textsOfItem(const RemovalReceipt &receipt, std::size_t row) const;

    std::vector<RemovalReceipt> _receipts;
    QStringList _names;
    bool _isPlan = true;
    bool _hasFailures = false;
};

} // namespace quorvin
