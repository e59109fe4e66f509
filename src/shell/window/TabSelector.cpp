// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/TabSelector.h"

#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/Contrast.h"
#include "shell/desktop/PlainText.h"

#include <QAbstractButton>
#include <QAction>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kHeight = 28;
constexpr int kPadding = 14; ///< beside the text
constexpr double kRadius = 5;

class TabButton final : public QAbstractButton {
public:
    explicit TabButton(QAction *tab)
    {
        setAccessibleRole(this, QAccessible::PageTab);
        setText(tab->text().remove(u'&'));
        setAccessibleName(text());
        const QString keys = tab->shortcut().toString(QKeySequence::NativeText);
        setToolTip(plainTip(keys));
        setCheckable(true);
        connect(this, &QAbstractButton::clicked, tab, &QAction::trigger);
        connect(tab, &QAction::changed, this, [this, tab] { setChecked(tab->isChecked()); });
        setChecked(tab->isChecked());
    }
    QSize sizeHint() const override
    {
        return {fontMetrics().horizontalAdvance(text()) + 2 * kPadding,
                std::max(kHeight, fontMetrics().height() + kPadding)};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        // Chosen is chosen, also while another window has the keyboard.
        const auto color
            = [this](QPalette::ColorRole role) { return palette().color(QPalette::Active, role); };
        const QRectF room = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
        if (isChecked()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(color(QPalette::Highlight));
            painter.drawRoundedRect(room, kRadius - 1, kRadius - 1);
        }
        const QColor ink = color(isChecked() ? QPalette::HighlightedText : QPalette::WindowText);
        painter.setPen(ink);
        painter.setBrush(Qt::NoBrush);
        painter.drawText(room, Qt::AlignCenter, text());
        if (hasFocus())
            painter.drawRoundedRect(room.adjusted(2, 2, -2, -2), kRadius - 2, kRadius - 2);
    }
};

} // namespace

TabSelector::TabSelector(const std::vector<QAction *> &tabs, QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::PageTabList);
    setAccessibleName(tr("Tabs"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    // The chosen tab alone is met by the Tab key; arrow keys lead on to the others.
    connect(&_buttons, &QButtonGroup::buttonToggled, this, [](QAbstractButton *button, bool isChosen) {
        button->setFocusPolicy(isChosen ? Qt::TabFocus : Qt::NoFocus);
    });
    for (QAction *tab : tabs) {
        auto *button = new TabButton(tab);
        button->setFocusPolicy(button->isChecked() ? Qt::TabFocus : Qt::NoFocus);
        _buttons.addButton(button);
        row->addWidget(button);
    }
}

void TabSelector::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor text = palette().color(QPalette::WindowText);
    const QColor ground = palette().color(QPalette::Window);
    painter.setBrush(between(ground, text, 0.05));
    painter.setPen(between(ground, text, 0.25));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

} // namespace quorvin
