// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/ComparisonPane.h"

#include "shell/compare/ComparisonTable.h"
#include "shell/compare/ComparisonView.h"
#include "shell/compare/TableLook.h"
#include "shell/info/EmptyPane.h"

#include <QStackedLayout>

namespace quorvin {

ComparisonPane::ComparisonPane(LiveSettings &settings, QWidget *parent)
    : Pane(parent),
      _view(new ComparisonView(settings)),
      _empty(new EmptyPane(QStringLiteral("view-columns"))),
      _pages(new QStackedLayout(this))
{
    // The first page is laid out as it comes, and without texts that takes no time.
    _pages->addWidget(_empty);
    _pages->addWidget(_view);
    _empty->setTexts(tr("Nothing to compare yet"), tr("Each file gets a column here once it is read."));
    connect(_view, &ComparisonView::isEmptyDidChange, this, &ComparisonPane::choosePage);
    connect(_view, &ComparisonView::selectionDidChange, this, &Pane::selectionDidChange);
    connect(_view, &ComparisonView::menuWanted, this,
            [this](const QPoint &where) { Q_EMIT menuWanted(CommandPlace::ComparisonMenu, where); });
}

void ComparisonPane::choosePage()
{
    _pages->setCurrentWidget(_view->isEmpty() ? static_cast<QWidget *>(_empty) : _view);
    // While there was no table the keyboard had nowhere else to go.
    const QWidget *focus = window()->focusWidget();
    if (!_view->isEmpty() && focus && (focus == this || focus->isAncestorOf(this)))
        _view->table().setFocus();
}

void ComparisonPane::showEvent(QShowEvent *event)
{
    Pane::showEvent(event);
    Q_EMIT _view->filesWanted();
}

bool ComparisonPane::canCopy() const
{
    return _view->canCopy();
}

void ComparisonPane::copy() const
{
    _view->copy();
}

void ComparisonPane::selectAll()
{
    _view->selectAll();
}

void ComparisonPane::openCurrent()
{
    _view->openCurrent();
}

void ComparisonPane::find()
{
    _view->find();
}

void ComparisonPane::findNext(bool backward)
{
    _view->findNext(backward);
}

void ComparisonPane::describe(CommandState &state) const
{
    _view->describe(state);
}

void ComparisonPane::registerAt(CommandSet &commands)
{
    _view->registerAt(commands);
}

void ComparisonPane::applyLook(const RowLook &look)
{
    _view->setLook(
        {look.font, look.height, look.wrapsLongLines, look.rightAlignsParameters, look.hasHeavyNames});
}

} // namespace quorvin
