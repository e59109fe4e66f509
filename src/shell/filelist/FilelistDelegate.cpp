// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistDelegate.h"

#include "shell/desktop/PlainText.h"
#include "shell/filelist/FilelistRow.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QTime>
#include <QToolTip>

namespace quorvin {

namespace {

constexpr int kCoverFrame = 1; ///< round a cover
constexpr int kPictureBox = FilelistRow::kPictureSide + 2 * kCoverFrame;
constexpr int kRowMargin = 8; ///< before the picture, between it and the text, and behind that
constexpr int kRowLead = 3; ///< above and below the picture
constexpr QChar kMark(u'\u2217'); ///< of a file that there is something to say of
constexpr double kWaitingOpacity = 0.4;

constexpr int kSpinnerSide = 16;
constexpr int kTurnMilliseconds = 1000;
constexpr int kMarkGap = 4;

/// The places of a row, mirrored where the text runs from the right.
struct RowPlaces {
    QRect picture;
    QRect text;
};

RowPlaces placesOf(const QStyleOptionViewItem &option)
{
    const QRect &row = option.rect;
    const QRect picture(row.x() + kRowMargin, row.y() + (row.height() - kPictureBox) / 2, kPictureBox,
                        kPictureBox);
    const int left = picture.right() + 1 + kRowMargin;
    const QRect text(left, row.y(), std::max(row.right() + 1 - kRowMargin - left, 0), row.height());
    return {QStyle::visualRect(option.direction, row, picture),
            QStyle::visualRect(option.direction, row, text)};
}

void drawSpinner(QPainter *painter, const QRect &box, const QStyleOptionViewItem &option, const QColor &color)
{
    const bool moves
        = option.widget->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, option.widget)
        != 0;
    const int now = moves ? QTime::currentTime().msecsSinceStartOfDay() % kTurnMilliseconds : 0;
    QRect circle(0, 0, kSpinnerSide, kSpinnerSide);
    circle.moveCenter(box.center());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap));
    // In sixteenths of a degree, clockwise.
    painter->drawArc(circle, 90 * 16 - 360 * 16 * now / kTurnMilliseconds, -270 * 16);
}

void drawPicture(QPainter *painter, const QRect &box, const QStyleOptionViewItem &option,
                 const QModelIndex &index)
{
    const bool isCover = index.data(FilelistRow::CoverRole).toBool();
    const bool isAccented = option.state & QStyle::State_Selected && option.state & QStyle::State_Active;
    const QSize most(FilelistRow::kPictureSide, FilelistRow::kPictureSide);
    const qreal ratio = painter->device()->devicePixelRatioF();
    const QPixmap picture
        = index.data(Qt::DecorationRole)
              .value<QIcon>()
              .pixmap(most, ratio, isAccented && !isCover ? QIcon::Selected : QIcon::Normal);
    QRect place(QPoint(), picture.deviceIndependentSize().toSize());
    place.moveCenter(box.center());
    const int state = index.data(FilelistRow::StateRole).toInt();
    if (state == FilelistRow::Waiting || state == FilelistRow::Unread)
        painter->setOpacity(kWaitingOpacity);
    painter->drawPixmap(place, picture);
    painter->setOpacity(1);
    if (isCover) {
        painter->setPen(option.palette.color(QPalette::Mid));
        painter->drawRect(place.adjusted(-kCoverFrame, -kCoverFrame, 0, 0));
    }
}

/// The texts, with the mark at the end of the room, or "" for none.
void drawTexts(QPainter *painter, const QRect &room, const QStyleOptionViewItem &option, const QString &path,
               const QString &mark)
{
    const QFontMetrics &metrics = option.fontMetrics;
    const int markWidth = mark.isEmpty() ? 0 : metrics.horizontalAdvance(mark) + kMarkGap;
    const bool isMirrored = option.direction == Qt::RightToLeft;
    const QRect place = isMirrored ? room.adjusted(markWidth, 0, 0, 0) : room.adjusted(0, 0, -markWidth, 0);
    const FilelistDelegate::Texts texts = FilelistDelegate::fittingTexts(path, metrics, place.width());
    const int folderWidth = metrics.horizontalAdvance(texts.folder);
    const int width = folderWidth + metrics.horizontalAdvance(texts.name);
    const int left = isMirrored ? place.right() + 1 - width : place.left();
    // By the row's own font, so that names of another script stand on the same line.
    const int baseline = place.y() + (place.height() - metrics.height()) / 2 + metrics.ascent();
    const QPalette::ColorGroup group
        = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    const bool isSelected = option.state & QStyle::State_Selected;
    const auto draw = [&](int x, const QString &text) {
        painter->setLayoutDirection(isMirrored && text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        painter->drawText(x, baseline, text);
    };
    painter->setFont(option.font);
    painter->setPen(
        option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::PlaceholderText));
    draw(left, texts.folder);
    painter->setPen(option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    draw(left + folderWidth, texts.name);
    if (!mark.isEmpty())
        painter->drawText(isMirrored ? room.left() : room.right() + 1 - markWidth + kMarkGap, baseline, mark);
}

} // namespace

FilelistDelegate::Texts FilelistDelegate::fittingTexts(const QString &path, const QFontMetrics &metrics,
                                                       int width)
{
    QString shown = path;
    shown.replace(u'\n', u' ');
    const qsizetype slash = shown.lastIndexOf(u'/') + 1;
    const QString name = shown.mid(slash);
    const int rest = width - metrics.horizontalAdvance(name);
    if (rest < 0)
        return {{}, metrics.elidedText(name, Qt::ElideMiddle, width)};
    const QString folder = metrics.elidedText(shown.left(slash), Qt::ElideLeft, rest);
    // The slash alone would say that it lies at the root.
    return {folder.size() > 1 && metrics.horizontalAdvance(folder) <= rest ? folder : QString(), name};
}

QSize FilelistDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {0, std::max(option.fontMetrics.height(), kPictureBox) + 2 * kRowLead};
}

void FilelistDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    if (!row.widget->hasFocus())
        row.state &= ~QStyle::State_Active;
    const RowPlaces places = placesOf(row);
    painter->save();
    row.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, row.widget);
    if (index.data(FilelistRow::StateRole).toInt() == FilelistRow::Reading) {
        const bool isSelected = row.state & QStyle::State_Selected;
        drawSpinner(painter, places.picture, row,
                    row.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    } else {
        drawPicture(painter, places.picture, row, index);
    }
    drawTexts(painter, places.text, row, index.data().toString(),
              !index.data(FilelistRow::MarkRole).toString().isEmpty() ? QString(kMark) : QString());
    if (row.state & QStyle::State_HasFocus && !(row.state & QStyle::State_Selected)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(row);
        row.widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, row.widget);
    }
    painter->restore();
}

bool FilelistDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                 const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QString text = index.data(FilelistRow::PathRole).toString();
    if (const QString reason = index.data(FilelistRow::ReasonRole).toString(); !reason.isEmpty())
        text += u'\n' + reason;
    if (const QString mark = index.data(FilelistRow::MarkRole).toString(); !mark.isEmpty())
        text += u'\n' + mark;
    const QPoint place = view->viewport()->mapToGlobal(placesOf(option).text.topLeft());
    QToolTip::showText(place, plainTip(text, *view), view->viewport(), option.rect);
    return true;
}

} // namespace quorvin
