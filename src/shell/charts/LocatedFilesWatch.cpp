// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/LocatedFilesWatch.h"

#include "shell/filelist/FilelistController.h"

#include <utility>

namespace quorvin {

namespace {

constexpr int kListMilliseconds = 500; ///< so often it follows the files

} // namespace

LocatedFilesWatch::LocatedFilesWatch(FilelistController &files, QObject *parent)
    : QObject(parent), _files(files)
{
    _timer.setSingleShot(true);
    _timer.setInterval(kListMilliseconds);
    connect(&_timer, &QTimer::timeout, this, &LocatedFilesWatch::gather);
    for (const auto signal :
         {&FilelistController::totalsDidChange, &FilelistController::windowArrangedFilelistDidChange})
        connect(&files, signal, this, &LocatedFilesWatch::filesDidChange);
}

void LocatedFilesWatch::setActive(bool isActive)
{
    if (std::exchange(_isActive, isActive) != isActive && isActive)
        gather();
}

void LocatedFilesWatch::setType(MapType type)
{
    if (std::exchange(_type, type) != type)
        gather();
}

void LocatedFilesWatch::filesDidChange()
{
    if (_isActive && !_timer.isActive())
        _timer.start();
}

void LocatedFilesWatch::gather()
{
    if (!_isActive)
        return;
    _run.start(
        "LocatedFiles",
        [list = _files.filelist(), passes = _files.filtering().passesWherever(),
         type = _type](const RunControl &run) { return locatedFilesOf(list, passes, type, run.stop()); },
        [this](const LocatedFilesPtr &files) { Q_EMIT located(files); });
}

} // namespace quorvin
