// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/ExtendedPane.h"

#include "shell/commands/CommandSet.h"
#include "shell/desktop/FocusRing.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/outline/ParameterRow.h"

#include <QVBoxLayout>

namespace quorvin {

ExtendedPane::ExtendedPane(QWidget *parent) : Pane(parent), _outline(new ExtendedOutline)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(_outline);
    new FocusRing(_outline);
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

void ExtendedPane::describe(CommandState &state) const
{
    state.canCopyValue = canCopy();
}

void ExtendedPane::registerAt(CommandSet &commands)
{
    commands.on(Command::expandAll, [this] { _outline->expandAllIn(); });
    commands.on(Command::collapseAll, [this] { _outline->collapseAllIn(); });
}

void ExtendedPane::setLook(const RowLook &look)
{
    _outline->setFont(look.font);
    _outline->setRowHeight(look.height);
    _outline->setWrapLongLines(look.wrapsLongLines);
    _outline->setRightAlignsParameters(look.rightAlignsParameters);
    _outline->setNamesWidth(look.namesWidth);
}

void ExtendedPane::fill(const QuorvinData *record)
{
    _outline->setContent(record ? record->extendedContent() : ExtTreeItems());
}

} // namespace quorvin
