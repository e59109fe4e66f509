// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/FactList.h"

#include "shell/desktop/PlainText.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kRowGap = 4; ///< device-independent pixels

} // namespace

FactList::FactList(QWidget *parent) : QWidget(parent), _grid(new QGridLayout(this))
{
    _grid->setContentsMargins(0, 0, 0, 0);
    _grid->setVerticalSpacing(kRowGap);
    _grid->setColumnStretch(1, 1);
}

void FactList::addRow()
{
    const Row row{plainLabel(), plainLabel()};
    row.label->setForegroundRole(QPalette::PlaceholderText);
    row.label->setAlignment(alignedInWindow(_labelsAlignment | Qt::AlignTop));
    row.label->setBuddy(row.value);
    row.value->setAlignment(alignedInWindow(Qt::AlignLeading | Qt::AlignTop));
    row.value->setWordWrap(true);
    row.value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    row.value->setContextMenuPolicy(Qt::CustomContextMenu);
    row.value->installEventFilter(this);
    connect(row.value, &QWidget::customContextMenuRequested, this,
            [this, value = row.value](const QPoint &at) {
                value->setFocus(Qt::MouseFocusReason);
                Q_EMIT menuWanted(value->mapToGlobal(at));
            });
    const int place = static_cast<int>(_rows.size());
    _grid->addWidget(row.label, place, 0);
    _grid->addWidget(row.value, place, 1);
    _rows.push_back(row);
}

void FactList::setFacts(const std::vector<Fact> &facts)
{
    while (_rows.size() < facts.size())
        addRow();
    for (std::size_t i = 0; i < _rows.size(); ++i) {
        const bool isUsed = i < facts.size();
        _rows[i].label->setText(isUsed ? facts[i].label : QString());
        _rows[i].value->setText(isUsed ? facts[i].value : QString());
        _rows[i].isPlace = isUsed && facts[i].isPlace;
        QFont font;
        font.setItalic(isUsed && facts[i].isRemark);
        _rows[i].value->setFont(font);
        _rows[i].label->setVisible(isUsed);
        _rows[i].value->setVisible(isUsed);
    }
}

bool FactList::eventFilter(QObject *watched, QEvent *event)
{
    const auto *const key
        = event->type() == QEvent::KeyPress ? static_cast<const QKeyEvent *>(event) : nullptr;
    const bool isReturn = key && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
    const auto row = std::ranges::find(_rows, watched, &Row::value);
    if ((!isReturn && event->type() != QEvent::MouseButtonDblClick) || row == _rows.end() || !row->isPlace)
        return QWidget::eventFilter(watched, event);
    Q_EMIT placeOpened();
    return true;
}

void FactList::setLabelsAlignment(Qt::Alignment alignment)
{
    _labelsAlignment = alignment;
    for (const Row &row : _rows)
        row.label->setAlignment(alignedInWindow(alignment | Qt::AlignTop));
}

void FactList::setLabelsWidth(int width)
{
    _grid->setColumnMinimumWidth(0, width);
}

void FactList::setGap(int gap)
{
    _grid->setHorizontalSpacing(gap);
}

const FactList::Row *FactList::focusedRow() const
{
    const auto row = std::ranges::find_if(_rows, [](const Row &one) { return one.value->hasFocus(); });
    return row == _rows.end() ? nullptr : &*row;
}

void FactList::copy() const
{
    if (const Row *row = focusedRow())
        QGuiApplication::clipboard()->setText(
            row->value->hasSelectedText()
                ? row->value->selectedText()
                : QStringLiteral("%1: %2").arg(row->label->text(), row->value->text()));
}

void FactList::copyValue() const
{
    if (const Row *row = focusedRow())
        QGuiApplication::clipboard()->setText(row->value->text());
}

} // namespace quorvin
