// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/OutlineDelegate.h"

#include "export/HtmlText.h"
#include "shell/outline/ExtTreeModel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

#include <cmath>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kMostTipCharacters = 1'000; ///< a value can be a whole book
constexpr int kMargin = 6; ///< beside a cell's text
constexpr int kLead = 2; ///< above and below it

QString shortened(const QString &text, qsizetype most)
{
    if (text.size() <= most)
        return text;
    return text.left(text[most - 1].isHighSurrogate() ? most - 1 : most) + QChar(0x2026);
}

QString markupOf(const QString &text)
{
    return QStringLiteral("<p>%1</p>").arg(stringWithNewLinesAsBRs(stringByEncodingHTMLEntities(text, true)));
}

/// The title and the beginning stand in italics.
QList<QTextLayout::FormatRange> formatsOf(const QModelIndex &index, qsizetype length)
{
    QList<QTextLayout::FormatRange> formats;
    QTextCharFormat italic;
    italic.setFontItalic(true);
    if (const int beginning = index.data(ExtTreeModel::ItalicRole).toInt(); beginning > 0)
        formats.append({0, beginning, italic});
    if (const int title = index.data(ExtTreeModel::TitleRole).toInt(); title >= 0 && title < length)
        formats.append({title, static_cast<int>(length) - title, italic});
    return formats;
}

} // namespace

/// What a cell shows and how.
struct OutlineDelegate::Cell {
    QString text;
    QList<QTextLayout::FormatRange> formats;
    QFont font;
    Qt::Alignment alignment;
    bool wraps = true;
    bool isTopGroup = false;

    bool isSurelyOneLine(const QFontMetrics &metrics, int width) const
    {
        return text.size() * metrics.maxWidth() <= width && !text.contains(u'\n');
    }

    /// By the count of letters and lines alone.
    int guessedHeight(const QFontMetrics &metrics, int width) const
    {
        const qsizetype lines = text.size() * metrics.averageCharWidth() / width + text.count(u'\n') + 1;
        return static_cast<int>(lines) * metrics.lineSpacing();
    }

    /// Lays the text out in that width and gives its height.
    int layOut(QTextLayout &layout, int width) const
    {
        QTextOption option(alignment);
        // A value reads as its own script does, whatever the window's direction.
        option.setTextDirection(Qt::LayoutDirectionAuto);
        option.setWrapMode(wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
        QString shown = text;
        shown.replace(u'\n', wraps ? QChar(QChar::LineSeparator) : QChar(u' '));
        if (!wraps)
            shown = QFontMetrics(font).elidedText(shown, Qt::ElideRight, width);
        layout.setText(shown);
        layout.setFont(font);
        layout.setTextOption(option);
        layout.setFormats(formats);
        qreal height = 0;
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, height});
            height += line.height();
        }
        layout.endLayout();
        return static_cast<int>(std::ceil(height));
    }
};

OutlineDelegate::OutlineDelegate(QTreeView *outline, const ExtTreeModel &model)
    : QStyledItemDelegate(outline), _outline(outline)
{
    connect(&model, &QAbstractItemModel::modelReset, this, [this] { _heights.forget(); });
}

OutlineDelegate::Cell OutlineDelegate::cellOf(const QStyleOptionViewItem &option,
                                              const QModelIndex &index) const
{
    const bool isGroup = index.data(ExtTreeModel::GroupRole).toBool();
    Cell cell;
    cell.text = shortened(index.data().toString(), kMostCharacters);
    cell.font = option.font;
    if (isGroup)
        cell.font.setBold(true);
    cell.wraps = wrapsLongLines;
    cell.isTopGroup = isGroup && !index.parent().isValid();
    const bool toTheRight = index.column() == ExtTreeModel::Name && !isGroup && rightAlignsParameters;
    cell.alignment = toTheRight ? Qt::AlignTrailing : Qt::AlignLeading;
    cell.formats = formatsOf(index, cell.text.size());
    return cell;
}

int OutlineDelegate::textWidth(const QModelIndex &index) const
{
    int width = _outline->columnWidth(index.column());
    if (_outline->isFirstColumnSpanned(index.row(), index.parent()))
        width = _outline->viewport()->width();
    if (index.column() == ExtTreeModel::Name) {
        int level = _outline->rootIsDecorated() ? 1 : 0;
        for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
            ++level;
        width -= level * _outline->indentation();
    }
    return std::max(width - 2 * kMargin, 1);
}

QSize OutlineDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const Cell cell = cellOf(option, index);
    const int height = cell.wraps ? heightOf(cell, index) : QFontMetrics(cell.font).height();
    const int lead = kLead + (cell.isTopGroup ? kGroupGap : 0);
    return {0, std::max(height + lead + kLead, minimumRowHeight)};
}

CellHeights::Place OutlineDelegate::placeOf(const QModelIndex &index) const
{
    return {index.internalId(), index.column(), textWidth(index)};
}

int OutlineDelegate::heightOf(const Cell &cell, const QModelIndex &index) const
{
    const QFontMetrics metrics(cell.font);
    const CellHeights::Place place = placeOf(index);
    if (cell.isSurelyOneLine(metrics, place.width))
        return metrics.height();
    if (std::exchange(_measuredFont, _outline->font()) != _outline->font())
        _heights.forget();
    if (const auto known = _heights.known(place))
        return *known;
    if (!_heights.mayMeasureAhead(_outline->columnWidth(ExtTreeModel::Value)))
        return cell.guessedHeight(metrics, place.width);
    QTextLayout layout;
    const int height = cell.layOut(layout, place.width);
    _heights.learn(place, height);
    return height;
}

void OutlineDelegate::learnHeight(const Cell &cell, const QModelIndex &index, int height) const
{
    const QFontMetrics metrics(cell.font);
    const CellHeights::Place place = placeOf(index);
    if (cell.isSurelyOneLine(metrics, place.width) || _heights.known(place))
        return;
    _heights.learn(place, height);
    if (height != cell.guessedHeight(metrics, place.width))
        QMetaObject::invokeMethod(const_cast<OutlineDelegate *>(this), &OutlineDelegate::layOutAnew,
                                  Qt::QueuedConnection);
}

void OutlineDelegate::layOutAnew()
{
    // One screen can have had many wrong guesses; the tree lays itself out later, once for all.
    if (std::exchange(_isLayoutAsked, true))
        return;
    QTimer::singleShot(0, this, [this] {
        _isLayoutAsked = false;
        Q_EMIT sizeHintChanged({});
    });
}

void OutlineDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem own = option;
    initStyleOption(&own, index);
    own.text.clear();
    QStyle *style = own.widget ? own.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &own, painter, own.widget);

    Cell cell = cellOf(option, index);
    cell.alignment = QStyle::visualAlignment(option.direction, cell.alignment) | Qt::AlignAbsolute;
    const int lead = kLead + (cell.isTopGroup ? kGroupGap : 0);
    const QRect inner = option.rect.adjusted(kMargin, lead, -kMargin, -kLead);
    QTextLayout layout;
    const int height = cell.layOut(layout, std::max(inner.width(), 1));
    if (cell.wraps)
        learnHeight(cell, index, height);
    // The first lines of name and value stand side by side, however many follow; one line alone is centred.
    const int room = inner.height() - QFontMetrics(cell.font).height();
    const int above = room > 0 && option.rect.height() <= minimumRowHeight ? room / 2 : 0;
    const bool selected = own.state.testFlag(QStyle::State_Selected);
    const auto group = own.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setClipRect(option.rect);
    painter->setPen(own.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    layout.draw(painter, QPointF(inner.left(), inner.top() + above));
    painter->restore();
}

bool OutlineDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data().toString();
    const Cell cell = cellOf(option, index);
    const bool isShortened = text.size() > kMostCharacters
        || (!wrapsLongLines && QFontMetrics(cell.font).horizontalAdvance(cell.text) > textWidth(index));
    const QString tip = isShortened ? markupOf(shortened(text, kMostTipCharacters)) : QString();
    QToolTip::showText(event->globalPos(), tip, view);
    return true;
}

} // namespace quorvin
