// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/FindCommands.h"

#include "shell/filelist/FilelistController.h"
#include "shell/info/ExtendedPane.h"
#include "shell/info/InfoView.h"
#include "shell/window/MainView.h"
#include "shell/window/StatusLine.h"

#include <algorithm>

namespace quorvin {

FindCommands::FindCommands(MainView &view, FilelistController &files, QObject *parent)
    : QObject(parent), _view(view), _files(files)
{
    connect(&view.info().extended(), &ExtendedPane::otherFileWanted, this, &FindCommands::goToOtherFile);
}

void FindCommands::goToOtherFile(bool backwards)
{
    const QString text = _view.info().extended().searchText();
    if (text.isEmpty())
        return;
    _files.filtering().findFiles(text, [this, text, backwards](const IndexAnswerPtr &found) {
        goTo(nextRow(*found, backwards), text, backwards);
    });
}

/// Of the files found; -1 when the list shows none of them.
int FindCommands::nextRow(const IndexAnswer &found, bool backwards) const
{
    const std::vector<FilelistItemPtr> &files = _files.arranged().files();
    const auto count = static_cast<int>(files.size());
    const int current = std::max(_files.arranged().rowOf(_files.worker().currentFile()), 0);
    for (int i = 1; i <= count; ++i) {
        const int row = (current + (backwards ? count - i : i)) % count;
        if (found.has(files[static_cast<std::size_t>(row)].get()))
            return row;
    }
    return -1;
}

void FindCommands::goTo(int row, const QString &text, bool backwards)
{
    if (row < 0)
        return _view.statusLine().say(tr("No file has “%1”").arg(text));
    const bool isOnlyOne = _files.arranged().fileAt(row) == _files.worker().currentFile();
    if (!isOnlyOne)
        _files.selectRow(row);
    Q_EMIT _view.info().tabWanted(Tab::Extended);
    _view.info().extended().selectEndHit(backwards);
    if (isOnlyOne)
        _view.statusLine().say(tr("No other file has “%1”").arg(text));
}

} // namespace quorvin
