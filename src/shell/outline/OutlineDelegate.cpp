// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/OutlineDelegate.h"

#include "export/HtmlText.h"
#include "shell/outline/ExtTreeModel.h"
#include "shell/outline/HitPlaces.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kMostTipLetters = 1'000;
constexpr int kLead = 2; ///< above and below a text
constexpr std::size_t kMostMarks = 200; ///< of hits in one cell
constexpr float kMarkStrength = 0.35F; ///< of the ground behind a hit

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

QRect textRect(const QRect &cell)
{
    constexpr int kMargin = OutlineDelegate::kMargin;
    return cell.adjusted(kMargin, kLead, -kMargin, -kLead);
}

QPalette::ColorRole roleOf(const QModelIndex &index, bool selected)
{
    if (selected)
        return QPalette::HighlightedText;
    const bool isName = index.column() == ExtTreeModel::Name && !index.data(ExtTreeModel::GroupRole).toBool();
    return isName ? QPalette::PlaceholderText : QPalette::Text;
}

} // namespace

OutlineDelegate::OutlineDelegate(QTreeView *outline, const ExtTreeModel &model)
    : QStyledItemDelegate(outline), _outline(outline)
{
    connect(&model, &QAbstractItemModel::modelReset, this, [this] {
        _heights.forget();
        _toggled.clear();
    });
}

int OutlineDelegate::groupGap(const QModelIndex &index) const
{
    if (!index.data(ExtTreeModel::GroupRole).toBool())
        return 0;
    const bool isFirst = index.row() == 0 && !index.parent().isValid();
    const int line = QFontMetrics(_outline->font()).height();
    return isFirst || index.parent().isValid() ? line / 3 : line;
}

QFont OutlineDelegate::groupFont(QFont font)
{
    font.setWeight(QFont::DemiBold);
    return font;
}

CellText OutlineDelegate::cellOf(const QFont &font, const QModelIndex &index) const
{
    const bool isGroup = index.data(ExtTreeModel::GroupRole).toBool();
    CellText cell(index.data().toString(), wrapsLongLines, isOpen(index));
    cell.font = isGroup ? groupFont(font) : font;
    const bool toTheRight = index.column() == ExtTreeModel::Name && !isGroup && rightAlignsParameters;
    cell.alignment = toTheRight ? Qt::AlignTrailing : Qt::AlignLeading;
    cell.formats = formatsOf(index, cell.length());
    return cell;
}

void OutlineDelegate::markHits(CellText &cell, const QModelIndex &index, const QPalette &palette,
                               bool selected) const
{
    if (hits.isEmpty() || index.data(ExtTreeModel::GroupRole).toBool())
        return;
    QColor ground
        = palette.color(QPalette::Active, selected ? QPalette::HighlightedText : QPalette::Highlight);
    ground.setAlphaF(kMarkStrength);
    QTextCharFormat mark;
    mark.setBackground(ground);
    // The colour alone is no sign for everybody.
    mark.setFontUnderline(true);
    const QString text = index.data().toString().left(cell.length());
    for (const LetterRange &place : hitPlaces(hits, text, kMostMarks))
        cell.formats.append({static_cast<int>(place.start), static_cast<int>(place.length), mark});
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
    const CellText cell = cellOf(option.font, index);
    const int height = cell.wraps() ? heightOf(cell, index) : QFontMetrics(cell.font).height();
    return {0, std::max(height + 2 * kLead, minimumRowHeight) + groupGap(index)};
}

CellHeights::Place OutlineDelegate::placeOf(const QModelIndex &index) const
{
    return {index.internalId(), index.column(), textWidth(index), isOpen(index)};
}

int OutlineDelegate::heightOf(const CellText &cell, const QModelIndex &index) const
{
    const QFontMetrics metrics(cell.font);
    const CellHeights::Place place = placeOf(index);
    if (cell.isSurelyOneLine(metrics, place.width))
        return metrics.height();
    if (std::exchange(_measuredFont, _outline->font()) != _outline->font())
        _heights.forget();
    if (const auto known = _heights.known(place))
        return *known;
    if (!_heights.mayMeasureAhead(_outline->columnWidth(ExtTreeModel::Value), cell.length()))
        return cell.guessedHeight(metrics, place.width);
    QTextLayout layout;
    const int height = cell.layOut(layout, place.width).height;
    _heights.learn(place, height);
    return height;
}

void OutlineDelegate::learnHeight(const CellText &cell, const QModelIndex &index, int height) const
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

bool OutlineDelegate::isOpen(const QModelIndex &value) const
{
    return value.column() == ExtTreeModel::Value && _toggled.contains(value.internalId()) != _areAllOpen;
}

bool OutlineDelegate::isLong(const QModelIndex &value) const
{
    if (value.column() != ExtTreeModel::Value || !wrapsLongLines)
        return false;
    QTextLayout layout;
    return cellOf(_outline->font(), value).layOut(layout, textWidth(value)).wordTop >= 0;
}

void OutlineDelegate::setOpen(const QModelIndex &value, bool open)
{
    if (open == _areAllOpen)
        _toggled.remove(value.internalId());
    else
        _toggled.insert(value.internalId());
    Q_EMIT sizeHintChanged(value);
}

void OutlineDelegate::setAllOpen(bool open)
{
    _areAllOpen = open;
    _toggled.clear();
    Q_EMIT sizeHintChanged({});
}

void OutlineDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem own = option;
    initStyleOption(&own, index);
    own.text.clear();
    QStyle *style = own.widget ? own.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &own, painter, own.widget);

    CellText cell = cellOf(option.font, index);
    cell.alignment = QStyle::visualAlignment(option.direction, cell.alignment) | Qt::AlignAbsolute;
    const bool selected = own.state.testFlag(QStyle::State_Selected);
    markHits(cell, index, own.palette, selected);
    const QRect inner = textRect(option.rect);
    QTextLayout layout;
    const CellText::Extent extent = cell.layOut(layout, std::max(inner.width(), 1));
    if (cell.wraps())
        learnHeight(cell, index, extent.height);
    // The first lines of name and value stand on one baseline, whatever their scripts and however many lines
    // follow; one line alone is centred.
    const QFontMetrics metrics(cell.font);
    const int room = inner.height() - metrics.height();
    const int above = room > 0 && option.rect.height() <= minimumRowHeight ? room / 2 : 0;
    const qreal top = inner.top() + above + metrics.ascent() - extent.firstAscent;
    const auto group = own.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setClipRect(option.rect);
    painter->setPen(own.palette.color(group, roleOf(index, selected)));
    layout.draw(painter, QPointF(inner.left(), top));
    if (extent.wordTop >= 0) {
        painter->setFont(cell.font);
        painter->setPen(own.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Link));
        const QRect line(inner.left(), qRound(top) + extent.wordTop, inner.width(), metrics.height());
        painter->drawText(line, static_cast<int>(cell.alignment) | Qt::AlignTop, cell.word());
    }
    painter->restore();
}

bool OutlineDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                  const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::MouseButtonRelease || index.column() != ExtTreeModel::Value)
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    const auto *click = static_cast<QMouseEvent *>(event);
    const CellText cell = cellOf(option.font, index);
    const QRect inner = textRect(option.rect);
    QTextLayout layout;
    const CellText::Extent extent = cell.layOut(layout, std::max(inner.width(), 1));
    if (click->button() != Qt::LeftButton || extent.wordTop < 0
        || click->position().y() < inner.top() + extent.wordTop)
        return false;
    const bool opens = !isOpen(index);
    if (click->modifiers().testFlag(Qt::ControlModifier))
        setAllOpen(opens);
    else
        setOpen(index, opens);
    return true;
}

bool OutlineDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const CellText cell = cellOf(option.font, index);
    const bool isShortened
        = cell.isShortened() || (!wrapsLongLines && cell.naturalWidth() > textWidth(index));
    const QString tip
        = isShortened ? markupOf(beginningOf(index.data().toString(), kMostTipLetters)) : QString();
    QToolTip::showText(event->globalPos(), tip, view);
    return true;
}

} // namespace quorvin
