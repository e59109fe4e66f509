// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/FindBar.h"

#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/desktop/SearchField.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>

namespace quorvin {

namespace {

constexpr int kBarMargin = 8;
constexpr int kTextWidth = 240;

} // namespace

FindBar::FindBar(QWidget *parent) : QWidget(parent), _text(new SearchField), _hits(plainLabel())
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kBarMargin, kBarMargin / 2, kBarMargin, kBarMargin / 2);
    _text->setPlaceholderText(tr("Find in the comparison"));
    _text->setAccessibleName(tr("Find in the comparison"));
    _text->setMaximumWidth(kTextWidth);
    _hits->setForegroundRole(QPalette::PlaceholderText);
    row->addWidget(_text, 1);
    QToolButton *previous = addButton(Qt::UpArrow, tr("Previous hit"));
    QToolButton *next = addButton(Qt::DownArrow, tr("Next hit"));
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(_hits);
    row->addStretch(1);
    connect(_text, &QLineEdit::textChanged, this, &FindBar::textChanged);
    connect(previous, &QToolButton::clicked, this, &FindBar::previousWanted);
    connect(next, &QToolButton::clicked, this, &FindBar::nextWanted);
    hide();
}

QToolButton *FindBar::addButton(Qt::ArrowType arrow, const QString &name)
{
    auto *button = new QToolButton;
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setToolTip(plainTip(name));
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QString FindBar::text() const
{
    return isHidden() ? QString() : _text->text();
}

void FindBar::open()
{
    const bool wasHidden = isHidden();
    show();
    _text->setFocus(Qt::ShortcutFocusReason);
    _text->selectAll();
    if (wasHidden && !_text->text().isEmpty())
        Q_EMIT textChanged(_text->text());
}

void FindBar::setHits(int hits)
{
    if (_text->text().isEmpty())
        _hits->clear();
    else if (hits == 1)
        _hits->setText(tr("1 hit"));
    else
        _hits->setText(hits == 0 ? tr("Not found") : tr("%1 hits").arg(groupedCount(hits)));
}

void FindBar::close()
{
    hide();
    Q_EMIT textChanged({});
    Q_EMIT closed();
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        close();
    else if (isReturn && event->modifiers().testFlag(Qt::ShiftModifier))
        Q_EMIT previousWanted();
    else if (isReturn)
        Q_EMIT nextWanted();
    else
        QWidget::keyPressEvent(event);
}

} // namespace quorvin
