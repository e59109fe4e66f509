// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/PlaceNote.h"

#include "shell/filelist/FilelistController.h"
#include "shell/window/StatusLine.h"

#include <QItemSelectionModel>

namespace quorvin {

PlaceNote::PlaceNote(FilelistController &files, StatusLine &status, QObject *parent)
    : QObject(parent), _files(files), _status(status)
{
    connect(&files, &FilelistController::currentFileDidChange, this, &PlaceNote::update);
    connect(&files, &FilelistController::currentFileIsReady, this, &PlaceNote::update);
    connect(&files.selection(), &QItemSelectionModel::selectionChanged, this, &PlaceNote::update);
    connect(&_towns, &TownLookup::ready, this, &PlaceNote::update);
}

void PlaceNote::update()
{
    const QuorvinDataPtr record = _files.selectedCount() > 1 ? nullptr : _files.worker().currentQuorvinData();
    std::optional<QString> place;
    if (record && record->mapLocation())
        place = _towns.placeOf(*record->mapLocation());
    _status.setPlace(place.value_or(QString()));
}

} // namespace quorvin
