// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/ExtendedPane.h"

#include "shell/commands/CommandSet.h"
#include "shell/desktop/FocusRing.h"
#include "shell/info/ExtSearchBar.h"
#include "shell/info/WatchStrip.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/outline/ParameterRow.h"
#include "shell/session/LiveSettings.h"

#include <QHeaderView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

int leavesOf(const ExtTreeItems &items)
{
    int count = 0;
    for (const ExtTreeItemPtr &item : items)
        count += item->children() ? leavesOf(*item->children()) : 1;
    return count;
}

} // namespace

ExtendedPane::ExtendedPane(LiveSettings &settings, QWidget *parent)
    : Pane(parent),
      _settings(settings),
      _searchBar(new ExtSearchBar),
      _watched(new WatchStrip),
      _outline(new ExtendedOutline)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(_searchBar);
    column->addWidget(_watched);
    column->addWidget(_outline);
    connect(_searchBar, &ExtSearchBar::searchWanted, this, [this] { refill(); });
    connect(_searchBar, &ExtSearchBar::closeWanted, this, &ExtendedPane::hideExtSearchBar);
    connect(_searchBar, &ExtSearchBar::nextWanted, this, &ExtendedPane::findNext);
    new FocusRing(_outline);
    connect(_outline->header(), &QHeaderView::sectionResized, this, [this](int section, int, int width) {
        if (section == ExtTreeModel::Name)
            _watched->setNamesWidth(width);
    });
    connect(_watched, &WatchStrip::unwatched, this, &ExtendedPane::unwatch);
    connect(&settings, &LiveSettings::changed, this, [this](Setting setting) {
        if (setting == Setting::watchedParameters)
            showWatched();
    });
    showWatched();
    connect(_outline, &ExtendedOutline::selectionDidChange, this, &Pane::selectionDidChange);
    connect(_outline, &ExtendedOutline::menuWanted, this,
            [this](const QPoint &where) { Q_EMIT menuWanted(CommandPlace::TreeMenu, where); });
}

void ExtendedPane::showGroup(const QString &key, quint64 streamIndex)
{
    _outline->showGroup(key, streamIndex);
    _outline->setFocus();
}

void ExtendedPane::showParameter(const QString &section, quint32 stream, const QString &key)
{
    if (const QModelIndex row = rowOfParameter(_outline->content(), section, stream, key); row.isValid()) {
        _outline->setCurrentIndex(row);
        _outline->scrollTo(row, QAbstractItemView::PositionAtCenter);
    }
    _outline->setFocus();
}

bool ExtendedPane::canCopy() const
{
    return _outline->hasFocus() && _outline->canCopy();
}

void ExtendedPane::copy() const
{
    _outline->copy();
}

void ExtendedPane::copyValues() const
{
    _outline->copyValues();
}

void ExtendedPane::selectAll()
{
    _outline->selectAll();
}

QString ExtendedPane::searchText() const
{
    const bool hasOwn = _searchBar->isOpen() && !_searchBar->text().isEmpty();
    return hasOwn ? _searchBar->text() : _globalSearch;
}

void ExtendedPane::setGlobalSearch(const QString &text)
{
    _globalSearch = text;
    _outline->setSearch(searchText());
}

void ExtendedPane::find()
{
    const bool wasOpen = _searchBar->isOpen();
    _searchBar->showAnimated();
    if (!wasOpen && !_searchBar->text().isEmpty())
        refill();
}

void ExtendedPane::hideExtSearchBar()
{
    // A tree that gets the keyboard without a current row makes its first one so.
    const bool isOnRow = _outline->currentIndex().isValid();
    _searchBar->hideAnimated();
    if (isOnRow)
        _outline->showRow(_outline->currentIndex());
    _outline->setFocus();
}

void ExtendedPane::findNext(bool backwards)
{
    if (searchText().isEmpty())
        find();
    else if (!_outline->selectHit(backwards, false))
        Q_EMIT otherFileWanted(backwards);
}

bool ExtendedPane::selectEndHit(bool backwards)
{
    return _outline->selectHit(backwards, true);
}

void ExtendedPane::showWatched()
{
    _watched->setParameters(_ownWatched ? *_ownWatched
                                        : watchedFromText(_settings.string(Setting::watchedParameters)));
    _watched->setNamesWidth(_outline->columnWidth(ExtTreeModel::Name));
    refill();
}

const WatchedParameters &ExtendedPane::watched() const
{
    return _watched->parameters();
}

void ExtendedPane::watchForWindow(const WatchedParameters &parameters)
{
    _ownWatched = parameters;
    showWatched();
}

void ExtendedPane::watchForAll()
{
    _ownWatched.reset();
    showWatched();
}

void ExtendedPane::setWatched(const WatchedParameters &parameters)
{
    if (_ownWatched)
        watchForWindow(parameters);
    else
        _settings.set(Setting::watchedParameters, textOfWatched(parameters));
}

void ExtendedPane::toggleWatch()
{
    const auto selected = watchedParameterAt(_outline->content(), _outline->currentIndex());
    if (!selected)
        return;
    WatchedParameters parameters = _watched->parameters();
    if (std::erase(parameters, *selected) == 0)
        parameters.push_back(*selected);
    setWatched(parameters);
}

void ExtendedPane::unwatch(int index)
{
    WatchedParameters parameters = _watched->parameters();
    parameters.erase(parameters.begin() + index);
    setWatched(parameters);
    _outline->setFocus();
}

void ExtendedPane::fillWatched(const QuorvinData *record)
{
    if (_watched->parameters().empty())
        return;
    const ExtTreeItems tree = record ? record->extendedContent() : ExtTreeItems();
    _watched->showTree(record ? &tree : nullptr);
}

void ExtendedPane::describe(CommandState &state) const
{
    state.canCopyValue = canCopy();
    state.canFind = true;
    const auto selected = _outline->selectedItem()
        ? watchedParameterAt(_outline->content(), _outline->currentIndex())
        : std::nullopt;
    state.selectsParameter = selected.has_value();
    state.watchesParameter
        = selected && std::ranges::find(_watched->parameters(), *selected) != _watched->parameters().end();
}

void ExtendedPane::registerAt(CommandSet &commands)
{
    commands.on(Command::expandAll, [this] { _outline->expandAllIn(); });
    commands.on(Command::toggleWatch, [this] { toggleWatch(); });
    commands.on(Command::collapseAll, [this] { _outline->collapseAllIn(); });
}

void ExtendedPane::applyLook(const RowLook &look)
{
    _outline->setFont(look.font);
    _outline->setRowHeight(look.height);
    _outline->setWrapLongLines(look.wrapsLongLines);
    _outline->setRightAlignsParameters(look.rightAlignsParameters);
    _outline->setNamesWidth(look.namesWidth);
}

void ExtendedPane::fill(const QuorvinData *record)
{
    const QString path = record ? record->filename() : QString();
    const bool isSameFile = path == std::exchange(_path, path) && !path.isEmpty();
    const QString text = _searchBar->isOpen() ? _searchBar->text() : QString();
    ExtTreeItems tree = record ? record->extendedContentHaving(text) : ExtTreeItems();
    fillWatched(record);
    _searchBar->setHits(leavesOf(tree));
    _outline->setSearch(searchText());
    _outline->setContent(std::move(tree), !text.isEmpty(), isSameFile);
}

} // namespace quorvin
