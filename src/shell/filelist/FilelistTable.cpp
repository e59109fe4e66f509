// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistTable.h"

#include "platform/FileUri.h"
#include "platform/NativePath.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/FocusRing.h"
#include "shell/filelist/FilelistDelegate.h"
#include "shell/filelist/FilelistDrags.h"
#include "shell/filelist/FilelistRow.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDrag>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace quorvin {

namespace {

constexpr int kSpinnerMilliseconds = 80;
constexpr int kDropLineWidth = 2; ///< of the mark where a drop goes
constexpr int kFrameWidth = 2; ///< round the row of a menu
/// To find out where thousands of ranges lie takes longer than to paint all that is in sight.
constexpr qsizetype kMostMeasuredRanges = 50;
constexpr int kMostMeasuredRows = 200;

} // namespace

FilelistTable::FilelistTable(QAbstractItemModel &model, QItemSelectionModel &selection, QWidget *parent)
    : QListView(parent)
{
    setModel(&model);
    delete selectionModel();
    setSelectionModel(&selection);
    setItemDelegate(new FilelistDelegate(this));
    // All rows are alike, so that a long list need not be measured.
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    setAccessibleName(tr("Files"));
    setAccessibleDescription(tr("The files of this window"));
    viewport()->setAcceptDrops(false);
    setAcceptDrops(false);
    new FocusRing(this);
    connect(this, &QListView::doubleClicked, this, [this](const QModelIndex &row) {
        Q_EMIT openWanted(row.data(FilelistRow::PathRole).toString());
    });
    _readingTimer.setSingleShot(true);
    _readingTimer.setInterval(kSpinnerMilliseconds);
    connect(&_readingTimer, &QTimer::timeout, this, &FilelistTable::followReading);
}

void FilelistTable::copy() const
{
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList paths;
    for (const QModelIndex &row : rows)
        paths.append(row.data(FilelistRow::PathRole).toString());
    copyPaths(paths);
}

void FilelistTable::copyPaths(const QStringList &paths)
{
    auto *content = new QMimeData;
    content->setData(QStringLiteral("text/uri-list"), uriListOf(paths));
    content->setText(paths.join(u'\n'));
    QGuiApplication::clipboard()->setMimeData(content);
}

void FilelistTable::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    paintDropLine();
    paintFrame();
    if (!_readingTimer.isActive())
        _readingTimer.start();
}

void FilelistTable::followReading()
{
    bool isAwaited = false;
    const QRect seen = viewport()->rect();
    for (QModelIndex row = indexAt(seen.topLeft()); row.isValid() && visualRect(row).top() <= seen.bottom();
         row = row.siblingAtRow(row.row() + 1)) {
        const int state = row.data(FilelistRow::StateRole).toInt();
        isAwaited = isAwaited || state == FilelistRow::Waiting;
        if (state == FilelistRow::Reading)
            update(row);
    }
    // What is painted starts it again.
    if (isAwaited && isVisible())
        _readingTimer.start();
}

void FilelistTable::setDrags(FilelistDrags &drags)
{
    _drags = &drags;
    setDragEnabled(true);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
}

void FilelistTable::startDrag(Qt::DropActions)
{
    std::unique_ptr<QMimeData> content = _drags ? _drags->begin() : nullptr;
    if (!content)
        return;
    auto *drag = new QDrag(this);
    drag->setMimeData(content.release());
    drag->setPixmap(dragPicture());
    // Nobody is to take a file away because it was shown here; between windows the lists see to it
    // themselves.
    drag->exec(Qt::CopyAction);
    _drags->end();
}

QPixmap FilelistTable::dragPicture() const
{
    QPixmap picture = viewport()->grab(visualRect(currentIndex()));
    const qsizetype count = selectionModel()->selectedRows().size();
    if (count < 2)
        return picture;
    const QString text = groupedCount(count);
    const int height = static_cast<int>(picture.deviceIndependentSize().height());
    QRect badge(0, 0, fontMetrics().horizontalAdvance(text) + height, height);
    badge.moveRight(static_cast<int>(picture.deviceIndependentSize().width()) - 1);
    QPainter painter(&picture);
    painter.fillRect(badge, palette().color(QPalette::Active, QPalette::Highlight));
    painter.setPen(palette().color(QPalette::Active, QPalette::HighlightedText));
    painter.drawText(badge, Qt::AlignCenter, text);
    return picture;
}

std::optional<int> FilelistTable::dropRowAt(const QPoint &position) const
{
    const QModelIndex index = indexAt(position);
    if (!index.isValid())
        return model()->rowCount();
    const QRect row = visualRect(index);
    const int third = row.height() / 3;
    if (position.y() < row.top() + third)
        return index.row();
    if (position.y() > row.bottom() - third)
        return index.row() + 1;
    return std::nullopt;
}

void FilelistTable::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
    // What is over the middle of a row now may go between two in a moment.
    event->setAccepted(_drags->planFor(*event->mimeData(), event->modifiers()).isAccepted);
}

void FilelistTable::dragMoveEvent(QDragMoveEvent *event)
{
    const DropPlan plan = _drags->planFor(*event->mimeData(), event->modifiers());
    const QPoint position = event->position().toPoint();
    const std::optional<int> row = plan.replaces ? kWholeList : dropRowAt(position);
    setDropLine(plan.isAccepted ? row.value_or(kNoLine) : kNoLine);
    Q_EMIT _drags->hintDidChange(FilelistDrags::hintFor(plan));
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(plan.isAccepted && row && event->dropAction() == Qt::CopyAction);
    const int margin = autoScrollMargin();
    if (!viewport()->rect().adjusted(0, margin, 0, -margin).contains(position))
        startAutoScroll();
}

void FilelistTable::dragLeaveEvent(QDragLeaveEvent *event)
{
    setDropLine(kNoLine);
    Q_EMIT _drags->hintDidChange({});
    QListView::dragLeaveEvent(event);
}

void FilelistTable::dropEvent(QDropEvent *event)
{
    const DropPlan plan = _drags->planFor(*event->mimeData(), event->modifiers());
    const std::optional<int> row = plan.replaces ? 0 : dropRowAt(event->position().toPoint());
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(plan.isAccepted && row && event->dropAction() == Qt::CopyAction);
    QDragLeaveEvent left;
    dragLeaveEvent(&left);
    if (event->isAccepted())
        _drags->drop(*event->mimeData(), event->modifiers(), *row);
}

void FilelistTable::setDropLine(int row)
{
    if (std::exchange(_dropLine, row) != row)
        viewport()->update();
}

void FilelistTable::paintDropLine()
{
    if (_dropLine == kNoLine)
        return;
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), kDropLineWidth));
    if (_dropLine == kWholeList)
        return painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    const QModelIndex before = model()->index(_dropLine - 1, 0);
    const int y = before.isValid() ? visualRect(before).bottom() : 1;
    painter.drawLine(0, y, viewport()->width(), y);
}

void FilelistTable::setFramedRow(const QModelIndex &row)
{
    _framedRow = row;
    viewport()->update();
}

void FilelistTable::paintFrame()
{
    if (!_framedRow.isValid())
        return;
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), kFrameWidth));
    painter.drawRect(visualRect(_framedRow).adjusted(1, 1, -1, -1));
}

bool FilelistTable::event(QEvent *event)
{
    // Within a name a blank is a letter, whatever command it is elsewhere.
    if (event->type() == QEvent::ShortcutOverride && isTyping()
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
        event->accept();
        return true;
    }
    return QListView::event(event);
}

bool FilelistTable::isTyping() const
{
    return !_typed.isEmpty() && _sinceTyped.isValid()
        && _sinceTyped.elapsed() <= QApplication::keyboardInputInterval();
}

void FilelistTable::keyboardSearch(const QString &search)
{
    if (!isTyping())
        _typed.clear();
    _sinceTyped.start();
    if (_typed.isEmpty() && search.trimmed().isEmpty())
        return;
    _typed += search;
    // The same letter again and again goes from one of its names to the next.
    const bool isOneLetter = _typed.count(_typed.front(), Qt::CaseInsensitive) == _typed.size();
    const QString wanted = isOneLetter ? _typed.left(1) : _typed;
    const int first = std::max(currentIndex().row() + (isOneLetter ? 1 : 0), 0);
    const int count = model()->rowCount();
    for (int i = 0; i < count; ++i) {
        const QModelIndex row = model()->index((first + i) % count, 0);
        if (!lastPathComponent(row.data().toString()).startsWith(wanted, Qt::CaseInsensitive))
            continue;
        selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect);
        return;
    }
}

void FilelistTable::mousePressEvent(QMouseEvent *event)
{
    // A menu opens at any row, and what is selected stays so.
    if (event->button() != Qt::RightButton)
        QListView::mousePressEvent(event);
}

void FilelistTable::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Mouse) {
        const QModelIndex clicked = indexAt(event->pos());
        if (clicked.isValid())
            Q_EMIT menuWanted(clicked, event->globalPos());
    } else if (currentIndex().isValid()) {
        Q_EMIT menuWanted(currentIndex(), viewport()->mapToGlobal(visualRect(currentIndex()).center()));
    }
}

void FilelistTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    if (!_isExtending)
        _anchor = current;
    QListView::currentChanged(current, previous);
}

void FilelistTable::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                const QList<int> &roles)
{
    int first = topLeft.row();
    int last = bottomRight.row();
    // Each row would be measured, in sight or not.
    if (last - first > kMostMeasuredRows) {
        const QModelIndex top = indexAt(viewport()->rect().topLeft());
        const QModelIndex bottom = indexAt(viewport()->rect().bottomLeft());
        first = std::max(first, top.row());
        last = bottom.isValid() ? std::min(last, bottom.row()) : last;
    }
    // A plain list would lay all rows out anew for each one that was read. They are alike whatever they show.
    if (first <= last)
        QAbstractItemView::dataChanged( // NOLINT(bugprone-parent-virtual-call)
            model()->index(first, topLeft.column()), model()->index(last, bottomRight.column()), roles);
}

QRegion FilelistTable::visualRegionForSelection(const QItemSelection &selection) const
{
    return selection.size() > kMostMeasuredRanges ? QRegion(viewport()->rect())
                                                  : QListView::visualRegionForSelection(selection);
}

void FilelistTable::keyPressEvent(QKeyEvent *event)
{
    struct Move {
        int key;
        CursorAction action;
    };
    static constexpr std::array kMoves{
        Move{Qt::Key_Up, MoveUp},   Move{Qt::Key_Down, MoveDown},     Move{Qt::Key_Home, MoveHome},
        Move{Qt::Key_End, MoveEnd}, Move{Qt::Key_PageUp, MovePageUp}, Move{Qt::Key_PageDown, MovePageDown}};
    const auto *const move = std::ranges::find(kMoves, event->key(), &Move::key);
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && currentIndex().isValid())
        Q_EMIT openWanted(currentIndex().data(FilelistRow::PathRole).toString());
    else if (move == kMoves.end() || event->modifiers() != Qt::ShiftModifier)
        QListView::keyPressEvent(event);
    else
        extendSelectionTo(moveCursor(move->action, event->modifiers()));
}

void FilelistTable::extendSelectionTo(const QModelIndex &row)
{
    if (!row.isValid())
        return;
    // The toolkit extends from the last row that was clicked, and knows nothing of one selected since.
    _isExtending = true;
    selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
    _isExtending = false;
    const QModelIndex anchor = _anchor.isValid() ? QModelIndex(_anchor) : row;
    const auto [first, last] = std::minmax(anchor, row);
    selectionModel()->select({first, last}, QItemSelectionModel::ClearAndSelect);
}

} // namespace quorvin
