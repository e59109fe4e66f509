// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilterStrip.h"

#include "shell/desktop/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

namespace quorvin {

namespace {

constexpr qsizetype kMostStripLetters = 160; ///< of one filter; its tip has all
constexpr int kStripTipWidth = 480;

QString shortened(const QString &text)
{
    return text.size() <= kMostStripLetters ? text : text.left(kMostStripLetters) + QChar(0x2026);
}

} // namespace

FilterStrip::FilterStrip(QWidget *parent) : QWidget(parent), _lines(new QVBoxLayout), _counts(plainLabel())
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(8, 4, 4, 5);
    column->setSpacing(2);
    _lines->setSpacing(0);
    column->addLayout(_lines);
    column->addWidget(_counts);
    _counts->setForegroundRole(QPalette::PlaceholderText);
    setAccessibleName(tr("Filters of the list"));
    hide();
}

QWidget *FilterStrip::lineWidget(const Line &line)
{
    auto *widget = new QWidget;
    auto *row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    QLabel *label = plainLabel(shortened(line.text));
    label->setWordWrap(true);
    label->setMinimumWidth(1);
    label->setToolTip(plainTip(line.text, font(), kStripTipWidth));
    row->addWidget(label, 1);
    auto *remove = new QToolButton;
    remove->setText(QStringLiteral("\u00d7"));
    remove->setAutoRaise(true);
    remove->setFocusPolicy(Qt::StrongFocus);
    remove->setToolTip(plainTip(tr("Remove this filter")));
    remove->setAccessibleName(tr("Remove filter: %1").arg(line.text));
    connect(remove, &QToolButton::clicked, this, line.remove);
    row->addWidget(remove, 0, Qt::AlignTop);
    return widget;
}

void FilterStrip::setLines(const std::vector<Line> &lines)
{
    while (QLayoutItem *old = _lines->takeAt(0)) {
        // It may be the one whose button was just pressed.
        old->widget()->hide();
        old->widget()->deleteLater();
        delete old;
    }
    for (const Line &line : lines)
        _lines->addWidget(lineWidget(line));
    // Readers go by this order.
    _counts->raise();
    setVisible(!lines.empty());
}

void FilterStrip::setCounts(const QString &text)
{
    _counts->setText(text);
}

void FilterStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.15F);
    painter.fillRect(0, height() - 1, width(), 1, line);
}

} // namespace quorvin
