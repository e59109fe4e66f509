// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/SymbolView.h"

#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/Icons.h"

#include <QPainter>

namespace quorvin {

SymbolView::SymbolView(const QString &name, int side, QIcon::Mode mode)
    : _symbol(symbolIcon(name)), _mode(mode)
{
    setAccessibleRole(this, QAccessible::Graphic);
    setFixedSize(side, side);
}

void SymbolView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    _symbol.paint(&painter, rect(), Qt::AlignCenter, _mode);
}

} // namespace quorvin
