// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/OutlineHeader.h"

#include "shell/outline/ExtTreeModel.h"

#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kLeastNamesWidth = 120;
constexpr int kMostFirstNamesWidth = 260;
constexpr int kLeastValuesWidth = 80;

} // namespace

OutlineHeader::OutlineHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsMovable(false);
    setStretchLastSection(true);
    setSectionsClickable(false);
    connect(this, &QHeaderView::sectionHandleDoubleClicked, this, [this] {
        setNamesWidth(0);
        Q_EMIT namesWidthChosen(0);
    });
    connect(this, &QHeaderView::sectionResized, this, [this](int section, int, int width) {
        if (section != ExtTreeModel::Name || _isPlacingBorder)
            return;
        _namesWidth = width;
        Q_EMIT namesWidthChosen(width);
    });
}

void OutlineHeader::setNamesWidth(int width)
{
    _namesWidth = width;
    placeBorder(_viewWidth);
}

void OutlineHeader::placeBorder(int viewWidth)
{
    _viewWidth = viewWidth;
    const int part = std::clamp(viewWidth * 3 / 10, kLeastNamesWidth, kMostFirstNamesWidth);
    const int width
        = _namesWidth > 0 ? std::min(_namesWidth, std::max(viewWidth - kLeastValuesWidth, 1)) : part;
    const QScopedValueRollback placing(_isPlacingBorder, true);
    if (count() > 0)
        resizeSection(ExtTreeModel::Name, width);
}

void OutlineHeader::setLeads(int nameLead, int margin)
{
    _nameLead = nameLead;
    _margin = margin;
    viewport()->update();
}

void OutlineHeader::paintSection(QPainter *painter, const QRect &rect, int section) const
{
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, section);
    const auto alignment = option.textAlignment;
    option.rect = rect;
    option.text.clear();
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);

    const int lead = section == ExtTreeModel::Name ? _nameLead : _margin;
    const QRect logical = rect.adjusted(lead, 0, -_margin, 0);
    const QString text = model()->headerData(section, Qt::Horizontal).toString();
    painter->setPen(palette().color(QPalette::PlaceholderText));
    painter->drawText(QStyle::visualRect(layoutDirection(), rect, logical),
                      static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment)),
                      fontMetrics().elidedText(text, Qt::ElideRight, logical.width()));
}

} // namespace quorvin
