// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/WatchStrip.h"

#include "shell/desktop/PlainText.h"
#include "shell/info/ElidedLabel.h"

#include <QGridLayout>
#include <QPainter>
#include <QToolButton>

#include <algorithm>

namespace quorvin {

namespace {

enum WatchColumn { WatchedName, WatchedValue, WatchedButton };

constexpr int kWatchMargin = 6;
constexpr qsizetype kMostWatchedLetters = 500; ///< of a value, which has one line

} // namespace

WatchStrip::WatchStrip(QWidget *parent) : QWidget(parent), _grid(new QGridLayout(this))
{
    _grid->setContentsMargins(kWatchMargin, 3, kWatchMargin, 4);
    _grid->setHorizontalSpacing(2 * kWatchMargin);
    _grid->setVerticalSpacing(0);
    _grid->setColumnStretch(WatchedValue, 1);
    setAccessibleName(tr("Watched parameters"));
    hide();
}

void WatchStrip::setParameters(const WatchedParameters &parameters)
{
    while (QLayoutItem *old = _grid->takeAt(0)) {
        // It may be the one whose button was just pressed.
        old->widget()->hide();
        old->widget()->deleteLater();
        delete old;
    }
    _parameters = parameters;
    for (std::size_t i = 0; i < parameters.size(); ++i)
        addRow(static_cast<int>(i), parameters[i].title());
    setNamesWidth(_namesWidth);
    setVisible(!parameters.empty());
}

void WatchStrip::addRow(int row, const QString &title)
{
    auto *name = new ElidedLabel(Qt::ElideRight);
    name->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    name->setForegroundRole(QPalette::PlaceholderText);
    name->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    name->setWholeText(title);
    _grid->addWidget(name, row, WatchedName);
    auto *value = new ElidedLabel(Qt::ElideRight);
    _grid->addWidget(value, row, WatchedValue);
    auto *remove = new QToolButton;
    remove->setText(QStringLiteral("\u00d7"));
    remove->setAutoRaise(true);
    remove->setFocusPolicy(Qt::TabFocus);
    remove->setToolTip(plainTip(tr("Watch this parameter no more")));
    remove->setAccessibleName(tr("Watch “%1” no more").arg(title));
    connect(remove, &QToolButton::clicked, this, [this, row] { Q_EMIT unwatched(row); });
    _grid->addWidget(remove, row, WatchedButton);
}

QWidget *WatchStrip::widgetAt(int row, int column) const
{
    return _grid->itemAtPosition(row, column)->widget();
}

void WatchStrip::showTree(const ExtTreeItems *tree)
{
    for (std::size_t i = 0; i < _parameters.size(); ++i) {
        auto *value = static_cast<ElidedLabel *>(widgetAt(static_cast<int>(i), WatchedValue));
        const ExtTreeItem *item = tree ? findWatched(*tree, _parameters[i]) : nullptr;
        value->setForegroundRole(item ? QPalette::WindowText : QPalette::PlaceholderText);
        QString text = tree ? tr("not in this file") : QString();
        if (item)
            text = item->stringValue().left(kMostWatchedLetters).replace(u'\n', u' ');
        value->setWholeText(text);
        value->setAccessibleName(QStringLiteral("%1: %2").arg(_parameters[i].title(), text));
    }
}

void WatchStrip::setNamesWidth(int width)
{
    _namesWidth = width;
    for (std::size_t i = 0; i < _parameters.size(); ++i)
        widgetAt(static_cast<int>(i), WatchedName)->setFixedWidth(std::max(width - 2 * kWatchMargin, 1));
}

void WatchStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    QColor line = palette().color(QPalette::PlaceholderText);
    line.setAlphaF(0.35F);
    painter.fillRect(0, height() - 1, width(), 1, line);
}

} // namespace quorvin
