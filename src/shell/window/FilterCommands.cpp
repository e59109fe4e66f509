// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/FilterCommands.h"

#include "shell/commands/CommandSet.h"
#include "shell/desktop/Counts.h"
#include "shell/filelist/FilelistController.h"
#include "shell/filelist/FilelistPane.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/info/ExtendedPane.h"
#include "shell/info/InfoView.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/outline/WatchedParameter.h"
#include "shell/session/LiveSettings.h"
#include "shell/window/FilterPopover.h"
#include "shell/window/FindField.h"
#include "shell/window/MainView.h"
#include "shell/window/SidebarSplitView.h"
#include "shell/window/StatusLine.h"

namespace quorvin {

FilterCommands::FilterCommands(LiveSettings &settings, MainView &view, FilelistController &files,
                               QObject *parent)
    : QObject(parent),
      _settings(settings),
      _view(view),
      _files(files),
      _popover(new FilterPopover(settings, view, files, this))
{
    FilelistFiltering &filter = files.filtering();
    view.statusLine().follow(
        filter.search(),
        {tr("Stop the search; the list stays as it is"),
         [](int done, int total) {
             return tr("Searching: %1 of %2").arg(groupedCount(done), groupedCount(total));
         },
         [this] { _files.filtering().cancelSearch(); }});
    connect(&view.info(), &InfoView::showAllWanted, &filter, [&filter] { filter.setCriteria({}); });
}

void FilterCommands::registerAt(CommandSet &commands)
{
    commands.on(Command::performProjectFind, [this] { _field->edit(); });
    commands.on(Command::filterByName, [this] {
        // The field stands over the list.
        _view.sidebar().showSidebarWithoutAnimation();
        _view.list().editNameFilter();
    });
    commands.on(Command::toggleHideUnknownFiles, [this] { toggleHideUnknownFiles(); });
    commands.on(Command::toggleFilelistFilter, [this] { _popover->toggle(); });
    commands.on(Command::showOnlyWithValue, [this] { showOnlyWithValue(); });
    commands.on(Command::showOnlyWithoutParameter, [this] { showOnlyWithoutParameter(); });
    commands.on(Command::showAllFiles, [this] { _files.filtering().setCriteria({}); });
}

void FilterCommands::follow(FindField &field)
{
    _field = &field;
    connect(&field, &FindField::searchWanted, this, &FilterCommands::updateGlobalSearch);
    connect(&field, &FindField::left, &_view.table(), qOverload<>(&QWidget::setFocus));
    connect(&_files.filtering(), &FilelistFiltering::criteriaDidChange, &field, [this] {
        const QString &content = _files.filtering().criteria().globalText;
        _field->setSearch(content);
        _view.info().extended().setGlobalSearch(content);
    });
}

void FilterCommands::describe(CommandState &state) const
{
    const FilelistFilter &criteria = _files.filtering().criteria();
    state.hidesUnknownFiles = criteria.hideUnknownFiles;
    state.isListNarrowed = criteria.isActive();
}

void FilterCommands::toggleHideUnknownFiles()
{
    FilelistFilter criteria = _files.filtering().criteria();
    criteria.hideUnknownFiles = !criteria.hideUnknownFiles;
    _settings.set(Setting::hideUnknownFiles, criteria.hideUnknownFiles);
    _files.filtering().setCriteria(criteria);
}

void FilterCommands::showOnlyWithValue()
{
    const ExtendedOutline &outline = _view.info().outline();
    if (const auto parameter = watchedParameterAt(outline.content(), outline.currentIndex()))
        setRule(Rule::withValue(parameter->group, parameter->label,
                                outline.content().itemAt(outline.currentIndex())->stringValue()));
}

void FilterCommands::showOnlyWithoutParameter()
{
    const ExtendedOutline &outline = _view.info().outline();
    if (const auto parameter = watchedParameterAt(outline.content(), outline.currentIndex()))
        setRule(Rule::without(parameter->group, parameter->label));
}

void FilterCommands::setRule(const Rule &rule)
{
    FilelistFilter criteria = _files.filtering().criteria();
    criteria.rule = rule;
    _files.filtering().setCriteria(criteria);
}

void FilterCommands::updateGlobalSearch(const QString &text)
{
    FilelistFilter criteria = _files.filtering().criteria();
    criteria.globalText = text;
    _files.filtering().setCriteria(criteria);
}

} // namespace quorvin
