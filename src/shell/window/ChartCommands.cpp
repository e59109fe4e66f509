// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/ChartCommands.h"

#include "places/Projection.h"
#include "shell/charts/MapWindow.h"
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

namespace {

void bringUp(QWidget &window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

ChartCommands::ChartCommands(LiveSettings &settings, MainView &view, FilelistController &files,
                             CommandSet &commands, QWidget *window)
    : QObject(window), _settings(settings), _view(view), _files(files), _window(window)
{
    window->installEventFilter(this);
    commands.on(Command::showStatWindow, [this] { openStatistics(); });
    commands.on(Command::showMapWindow, [this] { openMap(); });
    commands.on(Command::parameterStatistics, [this] {
        const QString parameter = selectedParameter();
        if (parameter.isEmpty())
            return;
        openStatistics();
        _statWindow->showParameter(parameter);
    });
    connect(&view.info(), &InfoView::selectionDidChange, this, [this] {
        if (_statWindow)
            _statWindow->follow(selectedParameter());
    });
    commands.on(Command::showOnMap, [this] { showCurrentPlace(); });
    connect(&view.info(), &InfoView::locationOpened, this, &ChartCommands::showCurrentPlace);
}

bool ChartCommands::eventFilter(QObject *watched, QEvent *event)
{
    // One that is only minimized is hidden by the desktop.
    if (watched == _window && event->type() == QEvent::Hide && !event->spontaneous())
        for (QWidget *const chart : {static_cast<QWidget *>(_statWindow), static_cast<QWidget *>(_mapWindow)})
            if (chart)
                chart->close();
    return QObject::eventFilter(watched, event);
}

void ChartCommands::openStatistics()
{
    if (!_statWindow)
        _statWindow = new StatWindow(_files, _settings, _window);
    bringUp(*_statWindow);
}

void ChartCommands::openMap()
{
    if (!_mapWindow)
        _mapWindow = new MapWindow(_files, _settings, _window);
    bringUp(*_mapWindow);
}

void ChartCommands::showCurrentPlace()
{
    const auto info = _files.worker().currentMapLocationInfo();
    if (!info || !isPossible(info->location))
        return;
    openMap();
    _mapWindow->showLocation(info->location);
}

QString ChartCommands::selectedParameter() const
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
