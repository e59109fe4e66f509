// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/FilterPopover.h"

#include "shell/desktop/BackgroundRun.h"
#include "shell/desktop/Counts.h"
#include "shell/filelist/FilelistController.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/filelist/RuleEditor.h"
#include "shell/window/MainView.h"

#include <QEvent>

namespace quorvin {

namespace {

constexpr QSize kMostPopover(640, 360);
constexpr int kPopoverMargin = 12;

} // namespace

FilterPopover::FilterPopover(LiveSettings &settings, MainView &view, FilelistController &files,
                             QObject *parent)
    : QObject(parent), _settings(settings), _view(view), _files(files)
{
}

RuleEditor *FilterPopover::makeEditor()
{
    auto *editor = new RuleEditor(_settings, &_view);
    editor->hide();
    FilelistFiltering &filtering = _files.filtering();
    const auto showRule = [editor, &filtering] { editor->setRule(filtering.criteria().rule); };
    const auto showNames = [editor, &filtering] { editor->setNames(filtering.parameterNames()); };
    showRule();
    showNames();
    connect(editor, &RuleEditor::closeWanted, this, &FilterPopover::close);
    connect(editor, &RuleEditor::ruleDidChange, &filtering, [&filtering](const Rule &rule) {
        FilelistFilter criteria = filtering.criteria();
        criteria.rule = rule;
        filtering.setCriteria(criteria);
    });
    connect(&filtering, &FilelistFiltering::criteriaDidChange, editor, showRule);
    connect(&filtering, &FilelistFiltering::parameterNamesDidChange, editor, showNames);
    connect(&filtering.search(), &BackgroundRunBase::ended, this, &FilterPopover::showMatches);
    connect(&_files, &FilelistController::totalsDidChange, this, &FilterPopover::showMatches);
    _view.installEventFilter(this);
    return editor;
}

void FilterPopover::toggle()
{
    if (!_editor)
        _editor = makeEditor();
    if (_editor->isVisible())
        return close();
    place();
    _editor->show();
    _editor->raise();
    _editor->edit();
    showMatches();
}

void FilterPopover::close()
{
    const bool hadKeyboard = _editor->isAncestorOf(_view.window()->focusWidget());
    _editor->hide();
    if (hadKeyboard)
        _view.table().setFocus();
}

void FilterPopover::place()
{
    const QSize size = kMostPopover.boundedTo(_view.size() - QSize(2 * kPopoverMargin, 2 * kPopoverMargin));
    // Under its button at the end of the tool bar, so that the list stays in sight.
    const int left = _view.isRightToLeft() ? kPopoverMargin : _view.width() - size.width() - kPopoverMargin;
    _editor->setGeometry(QRect(QPoint(left, kPopoverMargin), size));
}

void FilterPopover::showMatches()
{
    if (!_editor->isVisible())
        return;
    const FilelistFiltering &filtering = _files.filtering();
    if (filtering.criteria().rule.isEmpty())
        return _editor->setMatches(tr("No rule: all files match"));
    if (filtering.isSearching())
        return _editor->setMatches(tr("Searching…"));
    _editor->setMatches(tr("%1 of %2 match the rule")
                            .arg(groupedCount(filtering.countOfRule()),
                                 countOfFiles(static_cast<qint64>(_files.filelist().size()))));
}

bool FilterPopover::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QObject::eventFilter(watched, event);
}

} // namespace quorvin
