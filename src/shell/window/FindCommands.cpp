// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/FindCommands.h"

#include "shell/desktop/Counts.h"
#include "shell/filelist/FilelistController.h"
#include "shell/info/ExtendedPane.h"
#include "shell/info/InfoView.h"
#include "shell/window/MainView.h"
#include "shell/window/StatusLine.h"

#include <algorithm>

namespace quorvin {

namespace {

/// The first of the files whose record has the text; null without one.
FilelistItemPtr firstWith(const std::vector<FilelistItemPtr> &files, const SearchText &text,
                          const RunControl &run)
{
    int done = 0;
    for (const FilelistItemPtr &file : files) {
        if (run.isStopped())
            break;
        const QuorvinDataPtr record = file->quorvinData();
        if (record && record->isContentHas(text))
            return file;
        run.report(++done, static_cast<int>(files.size()));
    }
    return nullptr;
}

} // namespace

FindCommands::FindCommands(MainView &view, FilelistController &files, QObject *parent)
    : QObject(parent), _view(view), _files(files)
{
    view.statusLine().follow(
        _search,
        {tr("Stop the search"),
         [](int done, int total) {
             return tr("Searching: %1 of %2").arg(groupedCount(done), groupedCount(total));
         },
         [this] { _search.cancel(); }});
    connect(&view.info().extended(), &ExtendedPane::otherFileWanted, this, &FindCommands::goToOtherFile);
}

void FindCommands::goToOtherFile(bool backwards)
{
    const QString text = _view.info().extended().searchText();
    std::vector<FilelistItemPtr> files = _files.arranged().files();
    if (text.isEmpty() || files.empty())
        return;
    const int current = std::max(_files.arranged().rowOf(_files.worker().currentFile()), 0);
    std::rotate(files.begin(), files.begin() + current + 1, files.end());
    // Backwards the current file comes last too.
    if (backwards)
        std::reverse(files.begin(), files.end() - 1);
    _search.start(
        "FindNext",
        [files = std::move(files), text](const RunControl &run) { return firstWith(files, text, run); },
        [this, text, backwards](const FilelistItemPtr &file) { goTo(file, text, backwards); });
}

void FindCommands::goTo(const FilelistItemPtr &file, const QString &text, bool backwards)
{
    const int row = file ? _files.arranged().rowOf(file) : -1;
    if (row < 0)
        return _view.statusLine().say(tr("No file has “%1”").arg(text));
    const bool isOnlyOne = file == _files.worker().currentFile();
    if (!isOnlyOne)
        _files.selectRow(row);
    Q_EMIT _view.info().tabWanted(Tab::Extended);
    _view.info().extended().selectEndHit(backwards);
    if (isOnlyOne)
        _view.statusLine().say(tr("No other file has “%1”").arg(text));
}

} // namespace quorvin
