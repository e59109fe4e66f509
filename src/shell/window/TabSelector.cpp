// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/TabSelector.h"

#include "shell/desktop/PlainText.h"

#include <QAction>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

namespace quorvin {

namespace {

/// Shows the keyboard on any style; a flat button alone hardly does.
class TabButton final : public QToolButton {
protected:
    void paintEvent(QPaintEvent *event) override
    {
        QToolButton::paintEvent(event);
        if (!hasFocus())
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), 3, 3);
    }
};

} // namespace

TabSelector::TabSelector(const std::vector<QAction *> &tabs, QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Tabs"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    for (QAction *tab : tabs) {
        auto *button = new TabButton;
        const QString name = tab->text().remove(u'&');
        button->setText(name);
        button->setAccessibleName(name);
        const QString keys = tab->shortcut().toString(QKeySequence::NativeText);
        button->setToolTip(plainTip(QStringLiteral("%1 (%2)").arg(name, keys)));
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setMinimumHeight(28);
        button->setMinimumWidth(button->fontMetrics().horizontalAdvance(name) + 24);
        _buttons.addButton(button);
        row->addWidget(button);
        connect(button, &QToolButton::clicked, tab, &QAction::trigger);
        connect(tab, &QAction::changed, button, [button, tab] { button->setChecked(tab->isChecked()); });
    }
}

} // namespace quorvin
