// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/CountModel.h"

#include "filefacts/Durations.h"
#include "filefacts/Sizes.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"

#include <QFont>
#include <QLocale>

#include <array>
#include <utility>

namespace quorvin {

namespace {

struct CountColumn {
    const char *title;
    const char *tip;
};
constexpr std::array<CountColumn, CountModel::ColumnCount> kCountColumns{{
    {QT_TRANSLATE_NOOP("CountModel", "Value"), nullptr},
    {QT_TRANSLATE_NOOP("CountModel", "Files"), nullptr},
    {QT_TRANSLATE_NOOP("CountModel", "Share"),
     QT_TRANSLATE_NOOP("CountModel", "Of all files that are listed")},
    {QT_TRANSLATE_NOOP("CountModel", "Streams"),
     QT_TRANSLATE_NOOP("CountModel", "How often it occurs: a file may have several streams of a kind")},
    {QT_TRANSLATE_NOOP("CountModel", "Duration"),
     QT_TRANSLATE_NOOP("CountModel", "How long these files play")},
    {QT_TRANSLATE_NOOP("CountModel", "Size"), nullptr},
}};

} // namespace

void CountModel::setTable(CountTablePtr table)
{
    beginResetModel();
    _table = std::move(table);
    endResetModel();
}

int CountModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !_table ? 0 : static_cast<int>(_table->rows().size());
}

int CountModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString CountModel::text(const CountRow &row, int column) const
{
    switch (column) {
    case Value:
        return row.text.simplified();
    case Files:
        return groupedCount(row.sum.files);
    case Share: {
        const auto all = static_cast<double>(_table->count().files.size());
        return QLocale().toString(100 * static_cast<double>(row.sum.files) / all, 'f', 1) + u'%';
    }
    case Streams:
        return row.sum.streams == 0 ? QString() : groupedCount(row.sum.streams);
    case Duration:
        return Utilities::formatDurationUpToSeconds(row.sum.duration);
    default:
        return row.sum.files == 0 ? QString() : Utilities::filesizeToMacHumanString(row.sum.bytes);
    }
}

QVariant CountModel::data(const QModelIndex &index, int role) const
{
    const CountRow &row = _table->rows()[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return index.column() == Value ? plainTip(row.text) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue((index.column() == Value ? Qt::AlignLeft : Qt::AlignRight)
                                   | Qt::AlignVCenter);
    case Qt::FontRole: {
        QFont font;
        font.setItalic(true);
        return row.isOfWords() ? QVariant(font) : QVariant();
    }
    default:
        return {};
    }
}

QVariant CountModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const CountColumn &column = kCountColumns[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return tr(column.title);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue((section == Value ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    return role == Qt::ToolTipRole && column.tip ? tr(column.tip) : QVariant();
}

} // namespace quorvin
