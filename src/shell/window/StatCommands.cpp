// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/StatCommands.h"

#include "shell/charts/StatWindow.h"
#include "shell/commands/CommandSet.h"
#include "shell/compare/ComparisonView.h"
#include "shell/filelist/FilelistController.h"
#include "shell/info/InfoView.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/outline/WatchedParameter.h"
#include "shell/window/MainView.h"

#include <QEvent>

namespace quorvin {

StatCommands::StatCommands(LiveSettings &settings, MainView &view, FilelistController &files,
                           CommandSet &commands, QWidget *window)
    : QObject(window), _settings(settings), _view(view), _files(files), _window(window)
{
    window->installEventFilter(this);
    commands.on(Command::showStatWindow, [this] { open(); });
    commands.on(Command::parameterStatistics, [this] {
        const QString parameter = selectedParameter();
        if (parameter.isEmpty())
            return;
        open();
        _statWindow->showParameter(parameter);
    });
    connect(&view.info(), &InfoView::selectionDidChange, this, [this] {
        if (_statWindow)
            _statWindow->follow(selectedParameter());
    });
}

bool StatCommands::eventFilter(QObject *watched, QEvent *event)
{
    // One that is only minimized is hidden by the desktop.
    if (watched == _window && event->type() == QEvent::Hide && !event->spontaneous() && _statWindow)
        _statWindow->close();
    return QObject::eventFilter(watched, event);
}

void StatCommands::open()
{
    if (!_statWindow)
        _statWindow = new StatWindow(_files, _settings, _window);
    _statWindow->show();
    _statWindow->raise();
    _statWindow->activateWindow();
}

QString StatCommands::selectedParameter() const
{
    if (_view.info().currentTab() == Tab::Comparison) {
        const ComparisonRow *const row = _view.info().comparison().extComparisonSelectionInfo();
        return row && !row->isHeading() ? row->section + u'/' + row->values.front() : QString();
    }
    if (_view.info().currentTab() != Tab::Extended)
        return {};
    const ExtendedOutline &outline = _view.info().outline();
    const auto parameter = watchedParameterAt(outline.content(), outline.currentIndex());
    return parameter ? parameter->group + u'/' + parameter->label : QString();
}

} // namespace quorvin
