// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/ExtSearchBar.h"

#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/desktop/SearchField.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace quorvin {

namespace {

constexpr int kShowMilliseconds = 100;
constexpr int kHideMilliseconds = 200;
constexpr int kSearchPauseMilliseconds = 150; ///< a tree of thousands of rows is not filled for each letter

} // namespace

ExtSearchBar::ExtSearchBar(QWidget *parent)
    : QWidget(parent), _searchField(new SearchField), _hits(plainLabel())
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->setSpacing(4);
    row->addWidget(_searchField, 1);
    row->addWidget(_hits);
    _hits->setForegroundRole(QPalette::PlaceholderText);
    _searchField->setPlaceholderText(tr("Find in this file"));
    _searchField->setAccessibleName(tr("Find in this file"));
    _searchField->installEventFilter(this);
    connect(addButton(QStringLiteral("\u25b2"), tr("Previous hit")), &QToolButton::clicked, this,
            [this] { Q_EMIT nextWanted(true); });
    connect(addButton(QStringLiteral("\u25bc"), tr("Next hit")), &QToolButton::clicked, this,
            [this] { Q_EMIT nextWanted(false); });
    connect(addButton(QStringLiteral("\u00d7"), tr("Close the search")), &QToolButton::clicked, this,
            &ExtSearchBar::closeWanted);
    _pause.setSingleShot(true);
    _pause.setInterval(kSearchPauseMilliseconds);
    connect(_searchField, &QLineEdit::textChanged, &_pause, qOverload<>(&QTimer::start));
    connect(&_pause, &QTimer::timeout, this, &ExtSearchBar::searchWanted);
    connect(&_slide, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &height) { setFixedHeight(height.toInt()); });
    connect(&_slide, &QVariantAnimation::finished, this, [this] { setVisible(_isOpen); });
    setFixedHeight(0);
    hide();
}

QToolButton *ExtSearchBar::addButton(const QString &text, const QString &name)
{
    auto *button = new QToolButton;
    button->setText(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(name);
    button->setToolTip(plainTip(name));
    layout()->addWidget(button);
    return button;
}

QString ExtSearchBar::text() const
{
    return _searchField->text();
}

void ExtSearchBar::showAnimated()
{
    if (!_isOpen) {
        _isOpen = true;
        show();
        slideTo(sizeHint().height(), kShowMilliseconds);
    }
    _searchField->setFocus(Qt::ShortcutFocusReason);
    _searchField->selectAll();
}

void ExtSearchBar::hideAnimated()
{
    if (!_isOpen)
        return;
    _isOpen = false;
    _pause.stop();
    // While the field still has the keyboard.
    Q_EMIT searchWanted();
    slideTo(0, kHideMilliseconds);
}

void ExtSearchBar::slideTo(int height, int milliseconds)
{
    _slide.stop();
    const bool isAnimated = isVisible() && style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
    if (!isAnimated) {
        setFixedHeight(height);
        return setVisible(_isOpen);
    }
    _slide.setDuration(milliseconds);
    _slide.setStartValue(this->height());
    _slide.setEndValue(height);
    _slide.start();
}

void ExtSearchBar::setHits(int hits)
{
    if (text().isEmpty())
        _hits->clear();
    else
        _hits->setText(hits == 1 ? tr("1 hit") : tr("%1 hits").arg(groupedCount(hits)));
}

bool ExtSearchBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto &key = static_cast<const QKeyEvent &>(*event);
    switch (key.key()) {
    case Qt::Key_Escape:
        Q_EMIT closeWanted();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (_pause.isActive()) {
            _pause.stop();
            Q_EMIT searchWanted();
        }
        Q_EMIT nextWanted(key.modifiers().testFlag(Qt::ShiftModifier));
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

} // namespace quorvin
