// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/RemovalCommands.h"

#include "shell/commands/CommandSet.h"
#include "shell/filelist/FilelistController.h"
#include "shell/info/InfoView.h"
#include "shell/surgery/RemovalController.h"
#include "shell/window/MainView.h"
#include "shell/window/StatusLine.h"

namespace quorvin {

namespace {

RemovalFiles removalFilesOf(const FilelistController &files)
{
    RemovalFiles both{.all = files.arranged().files()};
    for (const int row : files.selectedRows())
        both.selected.push_back(files.arranged().fileAt(row));
    return both;
}

} // namespace

RemovalCommands::RemovalCommands(LiveSettings &settings, MainView &view, FilelistController &files,
                                 CommandSet &commands, QWidget *window)
    : QObject(window), _files(files), _removal(new RemovalController(settings, window))
{
    commands.on(Command::menuRemoveImageMetadata,
                [this] { _removal->menuRemoveImageMetadata(removalFilesOf(_files)); });
    commands.on(Command::removeLocationInfo,
                [this] { _removal->removeLocationInfo(removalFilesOf(_files)); });
    connect(&view.info(), &InfoView::stripWanted, this, [this, &view] {
        if (_files.canExportAll())
            _removal->removeAll(removalFilesOf(_files));
        else
            view.statusLine().say(tr("Metadata can be removed when all files are read"));
    });
    connect(_removal, &RemovalController::filesDidChange, &_files, &FilelistController::reprocessFiles);
}

} // namespace quorvin
