// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/ToolBar.h"

#include "shell/commands/CommandSet.h"
#include "shell/desktop/AccessibleRole.h"
#include "shell/window/FindField.h"
#include "shell/window/TabSelector.h"

#include <QAction>
#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kIconSide = 18;
constexpr int kMargin = 4;
constexpr int kFieldWidth = 220;

} // namespace

ToolBar::ToolBar(const CommandSet &commands, QWidget *parent)
    : QToolBar(tr("Tool Bar"), parent),
      _tabs(new TabSelector(commands.actionsAt(CommandPlace::TabSelector), this)),
      _room(new QWidget),
      _globalSearchField(new FindField(this))
{
    setObjectName(QStringLiteral("toolbar"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setIconSize(QSize(kIconSide, kIconSide));
    QAction *sidebar = commands.action(Command::toggleSidebar);
    addAction(sidebar);
    for (QAction *action : commands.actionsAt(CommandPlace::ToolBar)) {
        if (action != sidebar)
            addAction(action);
    }
    setAccessibleRole(_room, QAccessible::Whitespace);
    _room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    _room->setMinimumSize(_tabs->sizeHint() + QSize(0, 2 * kMargin));
    QAction *room = addWidget(_room);
    for (QAction *action : commands.actionsAt(CommandPlace::ToolBarEnd))
        addAction(action);
    _findButton = widgetForAction(commands.action(Command::performProjectFind));
    for (QAction *action : actions()) {
        if (action != room)
            widgetForAction(action)->setAccessibleDescription(action->statusTip());
    }
    _tabs->raise();
}

bool ToolBar::event(QEvent *event)
{
    const bool handled = QToolBar::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        centreTabs();
        placeField();
    }
    return handled;
}

void ToolBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.15F);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.fillRect(0, height() - 1, width(), 1, line);
}

void ToolBar::centreTabs()
{
    const QRect room = _room->geometry();
    const QSize size = _tabs->sizeHint();
    const int left = std::clamp((width() - size.width()) / 2, room.left(),
                                std::max(room.right() + 1 - size.width(), room.left()));
    _tabs->setGeometry(QRect(QPoint(left, room.center().y() - size.height() / 2), size));
}

void ToolBar::placeField()
{
    const int width = std::min(kFieldWidth, this->width() / 2);
    const int height = _globalSearchField->sizeHint().height();
    QRect place(0, (this->height() - height) / 2, width, height);
    if (isRightToLeft())
        place.moveLeft(_findButton->geometry().left());
    else
        place.moveRight(_findButton->geometry().right());
    _globalSearchField->place(place, place.adjusted(-kMargin, 0, kMargin, 0).intersects(_tabs->geometry()));
}

} // namespace quorvin
