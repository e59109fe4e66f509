// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/CompareCommands.h"

#include "platform/NativePath.h"
#include "shell/commands/CommandSet.h"
#include "shell/compare/ComparisonExportController.h"
#include "shell/compare/ComparisonView.h"
#include "shell/desktop/FileManager.h"
#include "shell/filelist/FilelistController.h"
#include "shell/info/InfoView.h"
#include "shell/window/MainView.h"
#include "shell/window/StatusLine.h"

namespace quorvin {

namespace {

/// So often the columns follow the files that finish.
constexpr int kUpdateMilliseconds = 300;

} // namespace

CompareCommands::CompareCommands(LiveSettings &settings, MainView &view, FilelistController &files,
                                 QWidget *window)
    : QObject(window), _view(view), _files(files), _export(new ComparisonExportController(settings, window))
{
    _updateTimer.setSingleShot(true);
    _updateTimer.setInterval(kUpdateMilliseconds);
    connect(&_updateTimer, &QTimer::timeout, this, &CompareCommands::updateComparisonView);
    connect(&comparison(), &ComparisonView::filesWanted, this, &CompareCommands::updateComparisonView);
    for (const auto signal :
         {&FilelistController::totalsDidChange, &FilelistController::windowArrangedFilelistDidChange})
        connect(&files, signal, this, &CompareCommands::filesDidChange);
    connect(&comparison(), &ComparisonView::parameterWanted, this, &CompareCommands::showParameter);
    connect(&comparison(), &ComparisonView::exportWanted, this, &CompareCommands::exportComparison);
    connect(_export, &ComparisonExportController::exported, this, &CompareCommands::tellOfExport);
    for (const auto signal : {&BackgroundRunBase::started, &BackgroundRunBase::ended})
        connect(&_export->run(), signal, this, &CompareCommands::stateDidChange);
}

ComparisonView &CompareCommands::comparison() const
{
    return _view.info().comparison();
}

void CompareCommands::registerAt(CommandSet &commands)
{
    commands.on(Command::compareInWindow, [this] { Q_EMIT windowWanted(filesToCompare(), {}); });
    commands.on(Command::compareExtendedInWindow,
                [this] { Q_EMIT windowWanted(filesToCompare(), ComparisonFilter::All); });
}

void CompareCommands::describe(CommandState &state) const
{
    state.canExportComparison = state.showsTable && !_export->run().isUnderWay();
}

void CompareCommands::filesDidChange()
{
    if (comparison().isEmpty())
        updateComparisonView();
    else if (!_updateTimer.isActive())
        _updateTimer.start();
}

void CompareCommands::updateComparisonView()
{
    if (_view.info().currentTab() == Tab::Comparison)
        comparison().setFiles(_files.arranged().files());
}

void CompareCommands::showParameter(const FilelistItemPtr &file, const ComparedParameter &parameter)
{
    const int row = _files.arranged().rowOf(file);
    if (row < 0)
        return;
    _files.selectRow(row);
    Q_EMIT extendedTabWanted();
    _view.info().showParameter(parameter.section, parameter.stream, parameter.key);
}

std::vector<FilelistItemPtr> CompareCommands::filesToCompare() const
{
    const std::vector<int> rows = _files.selectedRows();
    if (rows.size() < 2)
        return _files.arranged().files();
    std::vector<FilelistItemPtr> files;
    files.reserve(rows.size());
    for (const int row : rows)
        files.push_back(_files.arranged().fileAt(row));
    return files;
}

void CompareCommands::exportComparison()
{
    const ComparisonController &content = comparison().content();
    _export->exportComparison(content.shownContent(), content.contentDescription());
}

void CompareCommands::tellOfExport(const QString &path)
{
    _view.statusLine().say(tr("Exported the comparison to “%1”").arg(lastPathComponent(path)), tr("Show"),
                           [path] { revealInFileManager(path); });
}

} // namespace quorvin
