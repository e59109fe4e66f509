// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/ReceiptModel.h"

#include "shell/desktop/Icons.h"
#include "shell/desktop/PlainText.h"
#include "shell/surgery/RemovalWords.h"

#include <QColor>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kDigests = 2;

std::size_t itemsOf(const RemovalReceipt &receipt)
{
    return receipt.result.kept.size() + receipt.result.removed.size() + (receipt.isWritten() ? kDigests : 0);
}

} // namespace

void ReceiptModel::setReceipts(std::vector<RemovalReceipt> receipts, QStringList names, bool isPlan)
{
    beginResetModel();
    _receipts = std::move(receipts);
    _names = std::move(names);
    _isPlan = isPlan;
    _hasFailures
        = std::ranges::any_of(_receipts, [](const auto &receipt) { return !receipt.failure.isEmpty(); });
    endResetModel();
}

/// The row of a file has the id 0, an item that of its file's row and 1.
const RemovalReceipt *ReceiptModel::receiptAbove(const QModelIndex &item) const
{
    return item.internalId() == 0 ? nullptr : &receiptAt(item.internalId() - 1);
}

int ReceiptModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(_receipts.size());
    if (parent.column() != 0 || receiptAbove(parent))
        return 0;
    return static_cast<int>(itemsOf(receiptAt(static_cast<std::size_t>(parent.row()))));
}

int ReceiptModel::columnCount(const QModelIndex &) const
{
    return kColumns;
}

QModelIndex ReceiptModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : quintptr{0});
}

QModelIndex ReceiptModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || child.internalId() == 0)
        return {};
    return createIndex(static_cast<int>(child.internalId() - 1), 0, quintptr{0});
}

ReceiptModel::Texts ReceiptModel::textsOfItem(const RemovalReceipt &receipt, std::size_t row) const
{
    const auto &[removed, kept] = receipt.result;
    if (row < kept.size())
        return {kept[row].key, tr("stays: %1").arg(kept[row].reason)};
    row -= kept.size();
    if (row < removed.size())
        return {removed[row], _isPlan ? tr("goes") : tr("removed")};
    return row == removed.size() ? Texts{tr("SHA-256 before"), receipt.digestBefore}
                                 : Texts{tr("SHA-256 after"), receipt.digestAfter};
}

QVariant ReceiptModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()
        || (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::DecorationRole))
        return {};
    const RemovalReceipt *above = receiptAbove(index);
    const auto row = static_cast<std::size_t>(index.row());
    if (role == Qt::DecorationRole) {
        if (above || index.column() != Name || !_hasFailures)
            return {};
        if (!receiptAt(row).failure.isEmpty())
            return symbolIcon(QStringLiteral("dialog-warning"));
        // As much room, so that all names begin at one place.
        return QColor(Qt::transparent);
    }
    const bool isTip = role == Qt::ToolTipRole;
    const Texts texts = above ? textsOfItem(*above, row)
                              : Texts{isTip ? receiptAt(row).path : _names.value(index.row()),
                                      outcomeInWords(receiptAt(row), _isPlan)};
    const QString &text = index.column() == Name ? texts.name : texts.outcome;
    return isTip ? plainTip(text) : text;
}

QVariant ReceiptModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    if (section == Name)
        return tr("Image");
    return _isPlan ? tr("What would come of it") : tr("What came of it");
}

} // namespace quorvin
