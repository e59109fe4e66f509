// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/PreviewCommands.h"

#include "shell/commands/CommandSet.h"
#include "shell/commands/CommandTable.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/preview/PreviewPanel.h"
#include "shell/window/MainView.h"
#include "shell/window/MainWindowController.h"
#include "shell/window/StatusLine.h"

#include <QAction>
#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>

namespace quorvin {

PreviewCommands::PreviewCommands(PreviewPanel &panel, MainWindowController &window)
    : QObject(&window), _panel(panel), _window(window)
{
    window.commands().on(Command::togglePreviewPanel, [this] { toggle(); });
    window.installEventFilter(this);
    connect(&window.files(), &FilelistController::currentFileDidChange, this, &PreviewCommands::follow);
    connect(&window, &MainWindowController::closed, this, &PreviewCommands::leave);
    connect(&panel, &PreviewPanel::stateDidChange, this, &PreviewCommands::showState);
    connect(&panel, &PreviewPanel::keyPressed, this, &PreviewCommands::takeKey);
    connect(&panel, &PreviewPanel::closedByKey, this, [this] {
        if (isUser())
            _window.activateWindow();
    });
    connect(&panel, &PreviewPanel::failed, this, [this](const QString &sentence) {
        if (isUser())
            _window.myView().statusLine().say(sentence);
    });
    showState();
}

void PreviewCommands::leave()
{
    if (isUser())
        _panel.close();
    _window.removeEventFilter(this);
    disconnect(&_window.files(), nullptr, this, nullptr);
}

bool PreviewCommands::isUser() const
{
    return _panel.user() == this;
}

void PreviewCommands::toggle()
{
    if (_panel.isOpen())
        _panel.close();
    else if (const auto path = _window.worker().currentFilePath())
        _panel.open(this, *path, windowNumber());
}

void PreviewCommands::follow()
{
    if (!_panel.isOpen() || !isUser())
        return;
    if (const auto path = _window.worker().currentFilePath())
        _panel.follow(this, *path, windowNumber());
    else
        _panel.close();
}

bool PreviewCommands::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && _panel.isOpen() && !isUser()) {
        if (const auto path = _window.worker().currentFilePath())
            _panel.follow(this, *path, windowNumber());
    }
    return QObject::eventFilter(watched, event);
}

void PreviewCommands::showState()
{
    _window.commands()
        .action(Command::togglePreviewPanel)
        ->setText(_panel.isOpen() ? tr("Close Pre&view") : tr("Pre&view"));
}

void PreviewCommands::takeKey(const PanelKey &key)
{
    if (!isUser())
        return;
    CommandSet &commands = _window.commands();
    const auto modifiers = Qt::KeyboardModifiers::fromInt(key.modifiers);
    const QKeySequence pressed(static_cast<int>(key.modifiers) | key.key);
    const auto found = std::ranges::find_if(commandTable(), [&](const CommandRow &row) {
        return commands.action(row.command)->shortcuts().contains(pressed);
    });
    if (found != commandTable().end())
        return commands.run(found->command);
    QKeyEvent event(QEvent::KeyPress, key.key, modifiers, key.text, key.isRepeated);
    QCoreApplication::sendEvent(&_window.myView().table(), &event);
}

quint64 PreviewCommands::windowNumber() const
{
    return QGuiApplication::platformName() == QLatin1String("xcb") ? _window.winId() : 0;
}

} // namespace quorvin
