// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/MapModel.h"

#include "places/PlacedFile.h"
#include "shell/desktop/PlainText.h"

#include <QFileInfo>
#include <QLocale>

#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr int kDecimals = 5; ///< of a degree: about a metre
constexpr std::array<const char *, MapModel::ColumnCount> kMapColumns{
    QT_TRANSLATE_NOOP("MapModel", "File"), QT_TRANSLATE_NOOP("MapModel", "Place"),
    QT_TRANSLATE_NOOP("MapModel", "Latitude"), QT_TRANSLATE_NOOP("MapModel", "Longitude"),
    QT_TRANSLATE_NOOP("MapModel", "Date")};

bool isNumber(int column)
{
    return column == MapModel::Latitude || column == MapModel::Longitude;
}

} // namespace

MapModel::MapModel(PlaceOf placeOf, QObject *parent)
    : QAbstractTableModel(parent), _placeOf(std::move(placeOf))
{
}

void MapModel::setFiles(const LocatedFilesPtr &files)
{
    beginResetModel();
    _files = files;
    endResetModel();
}

void MapModel::placesDidChange()
{
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, Place), index(rowCount() - 1, Place));
}

int MapModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !_files ? 0 : static_cast<int>(_files->files.size());
}

int MapModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString MapModel::text(std::size_t row, int column) const
{
    switch (column) {
    case File:
        return QFileInfo(_files->files[row]->filename()).fileName();
    case Place:
        return _placeOf(_files->locations[row]);
    case Latitude:
        return QLocale().toString(_files->locations[row].latitude, 'f', kDecimals);
    case Longitude:
        return QLocale().toString(_files->locations[row].longitude, 'f', kDecimals);
    default: {
        const QuorvinDataPtr record = _files->files[row]->quorvinData();
        return record ? recordedDate(*record).replace(u'T', u' ') : QString();
    }
    }
}

QVariant MapModel::data(const QModelIndex &index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return index.column() == File ? plainTip(_files->files[row]->filename()) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue((isNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft)
                                   | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant MapModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return tr(kMapColumns[static_cast<std::size_t>(section)]);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue((isNumber(section) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return {};
}

} // namespace quorvin
