// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/ListCommands.h"

#include "platform/FileUri.h"
#include "platform/NativePath.h"
#include "shell/commands/CommandSet.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/FileManager.h"
#include "shell/exporting/ExportController.h"
#include "shell/filelist/FilelistController.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/window/MainView.h"
#include "shell/window/StatusLine.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace quorvin {

ListCommands::ListCommands(MainView &view, FilelistController &files, ExportController &exporting,
                           QObject *parent)
    : QObject(parent), _view(view), _files(files), _export(exporting)
{
    connect(&view.table(), &FilelistTable::openWanted, this, &ListCommands::open);
    connect(&exporting, &ExportController::exported, this, &ListCommands::tellOfExport);
}

void ListCommands::registerAt(CommandSet &commands)
{
    commands.on(Command::paste, [this] { paste(); });
    commands.on(Command::menuExportNew, [this] { exportAll(); });
    commands.on(Command::exportSelection, [this] { exportSelection(); });
}

void ListCommands::describe(CommandState &state) const
{
    const bool isFree = !_export.run().isUnderWay();
    state.canExportAll = isFree && _files.canExportAll();
    state.canExportSelection = isFree && _files.canExport();
}

void ListCommands::paste()
{
    // The clipboard's owner is asked only now: it may take its time to answer.
    const QMimeData *content = QGuiApplication::clipboard()->mimeData();
    const QStringList paths
        = content ? pathsFromUriList(content->data(QStringLiteral("text/uri-list"))) : QStringList();
    if (paths.isEmpty())
        _view.statusLine().say(tr("Paste: there are no files in the clipboard"));
    else
        _files.processAdditionalFilesAndSelectFirst(paths);
}

void ListCommands::open(const QString &path)
{
    if (!openWithDesktop(path))
        _view.statusLine().say(
            tr("Open “%1”: the desktop has nothing that opens it").arg(lastPathComponent(path)));
}

void ListCommands::exportAll()
{
    _export.menuExportNew(_files.arrayWithDataForExport(), _files.arranged().files().size());
}

void ListCommands::exportSelection()
{
    std::vector<FilelistItemPtr> selected;
    for (const int row : _files.selectedRows())
        selected.push_back(_files.arranged().fileAt(row));
    _export.menuExportNew(exportEntriesOf(selected), selected.size());
}

void ListCommands::tellOfExport(const ExportTask &task)
{
    const QString files = countOfFiles(static_cast<qint64>(task.entries.size()));
    const QString place = lastPathComponent(task.path);
    const QString text = task.toFolder ? tr("Exported %1 to the folder “%2”").arg(files, place)
                                       : tr("Exported %1 to “%2”").arg(files, place);
    _view.statusLine().say(text, tr("Show"), [path = task.path, toFolder = task.toFolder] {
        if (!toFolder)
            revealInFileManager(path);
        else
            openWithDesktop(path);
    });
}

} // namespace quorvin
