// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/NumberAir.h"

#include "shell/desktop/ValueDelegate.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionHeader>
#include <QTableView>

namespace quorvin {

namespace {

constexpr int kBehindNumbers = 12; ///< of air, beside the margins of cells; device-independent pixels

bool hasAir(Qt::Alignment alignment)
{
    return alignment.testFlag(Qt::AlignRight);
}

class AiryDelegate final : public ValueDelegate {
public:
    using ValueDelegate::ValueDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        ValueDelegate::initStyleOption(option, index);
        if (!hasAir(option->displayAlignment))
            return;
        // The room of a picture, and none in it.
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationPosition = QStyleOptionViewItem::Right;
        option->decorationSize = {kBehindNumbers, 1};
    }
};

class AiryHeader final : public QHeaderView {
public:
    explicit AiryHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent) { setSectionsClickable(true); }

protected:
    void paintSection(QPainter *painter, const QRect &rect, int column) const override
    {
        QStyleOptionHeaderV2 option;
        initStyleOption(&option);
        initStyleOptionForIndex(&option, column);
        if (!hasAir(option.textAlignment))
            return QHeaderView::paintSection(painter, rect, column);
        option.rect = rect;
        style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
        option.rect = style()->subElementRect(QStyle::SE_HeaderLabel, &option, this);
        option.rect.adjust(isRightToLeft() ? air() : 0, 0, isRightToLeft() ? 0 : -air(), 0);
        style()->drawControl(QStyle::CE_HeaderLabel, &option, painter, this);
    }
    QSize sectionSizeFromContents(int column) const override
    {
        const QSize size = QHeaderView::sectionSizeFromContents(column);
        const auto alignment = model()->headerData(column, orientation(), Qt::TextAlignmentRole);
        return hasAir(alignment.value<Qt::Alignment>()) ? size + QSize(air(), 0) : size;
    }

private:
    /// As much as in the cells, where a picture has margins too.
    int air() const
    {
        return kBehindNumbers
            + 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, parentWidget()) + 1);
    }
};

} // namespace

void giveNumbersAir(QTableView &table)
{
    table.setItemDelegate(new AiryDelegate(&table));
    table.setHorizontalHeader(new AiryHeader(&table));
}

} // namespace quorvin
