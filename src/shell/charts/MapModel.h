// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/charts/LocatedFiles.h"

#include <QAbstractTableModel>

#include <functional>

namespace quorvin {

/// The files of a map as a table, a row for each of `LocatedFiles::files`. Main thread.
class MapModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { File, Place, Latitude, Longitude, Date, ColumnCount };
    using PlaceOf = std::function<QString(const Location &)>;

    /// `placeOf` says in words where a location is; "" while that is not known.
    MapModel(PlaceOf placeOf, QObject *parent);

    /// Null: none.
    void setFiles(const LocatedFilesPtr &files);
    /// Places are known now.
    void placesDidChange();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString text(std::size_t row, int column) const;

    PlaceOf _placeOf;
    LocatedFilesPtr _files;
};

} // namespace quorvin
