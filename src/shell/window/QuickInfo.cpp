// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/QuickInfo.h"

#include "platform/NativePath.h"
#include "shell/commands/CommandSet.h"
#include "shell/filelist/FilelistController.h"
#include "shell/info/QuickInfoPanel.h"

#include <QApplication>
#include <QKeyEvent>

namespace quorvin {

QuickInfo::QuickInfo(FilelistController &files, LiveSettings &settings, QWidget &list, QWidget *window)
    : QObject(window), _files(files), _settings(settings), _list(list), _window(window)
{
    connect(&files, &FilelistController::currentFileDidChange, this, &QuickInfo::update);
    connect(&files, &FilelistController::currentFileIsReady, this, &QuickInfo::update);
    connect(&files.currentFileWait(), &CurrentFileWait::changed, this, &QuickInfo::update);
}

void QuickInfo::registerAt(CommandSet &commands)
{
    commands.on(Command::toggleQuickInfo, [this] { toggle(); });
    commands.on(Command::testQuickInfo, [this] { open(); });
}

void QuickInfo::describe(CommandState &state) const
{
    state.showsQuickInfo = isOpen();
}

bool QuickInfo::isOpen() const
{
    return _panel && _panel->isVisible();
}

void QuickInfo::toggle()
{
    if (isOpen())
        close();
    else
        open();
}

void QuickInfo::open()
{
    if (!_panel) {
        _panel = new QuickInfoPanel(_settings, _window);
        connect(_panel, &QuickInfoPanel::stateDidChange, this, &QuickInfo::stateDidChange);
        connect(_panel, &QuickInfoPanel::walkKeyPressed, this,
                [this](QKeyEvent *event) { QApplication::sendEvent(&_list, event); });
    }
    _panel->show();
    _panel->activateWindow();
    update();
}

void QuickInfo::close()
{
    if (_panel)
        _panel->close();
}

void QuickInfo::update()
{
    if (!isOpen())
        return;
    const FilelistItemPtr &file = _files.worker().currentFile();
    if (!file)
        return _panel->showNote({}, tr("No file is selected"));
    if (const QuorvinDataPtr record = file->quorvinData())
        return _panel->showRecord(*record);
    QString note;
    if (file->isFailed())
        note = tr("It cannot be read: %1").arg(file->failureReason());
    else if (_files.worker().isUnread(file))
        note = tr("It was not read");
    else if (_files.currentFileWait().stage() != CurrentFileWait::None)
        note = tr("Reading…");
    _panel->showNote(lastPathComponent(file->filename()), note);
}

bool QuickInfo::hasKeyboard() const
{
    return isOpen() && _panel->isActiveWindow();
}

bool QuickInfo::canCopy() const
{
    return _panel->canCopy();
}

void QuickInfo::copy() const
{
    _panel->copy();
}

} // namespace quorvin
