// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/MapCanvas.h"

#include "places/MapLabels.h"
#include "shell/desktop/AccessibleRole.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace quorvin {

namespace {

constexpr double kStep = 2; ///< of a zoom by keys and buttons
constexpr double kOneMark = 24; ///< pixels; what lies nearer together looks like one spot
constexpr double kWheelStep = 240; ///< eighths of a degree that double the scale
constexpr int kPan = 64; ///< pixels that an arrow key moves the map by
constexpr QSize kLeastSize(240, 160);
constexpr double kPictureRatio = 2;
constexpr double kAir = 6;
constexpr double kNoteShare = 0.85; ///< of a panel that a note stands on

QPointF panOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {kPan, 0};
    case Qt::Key_Right:
        return {-kPan, 0};
    case Qt::Key_Up:
        return {0, kPan};
    case Qt::Key_Down:
        return {0, -kPan};
    default:
        return {};
    }
}

} // namespace

MapCanvas::MapCanvas(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Canvas);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(kLeastSize);
    setAccessibleName(tr("Map"));
    _view = MapView::wholeWorld(MapType::WebMercator, kLeastSize);
    connect(&_backdrop, &MapBackdrop::didChange, this, qOverload<>(&QWidget::update));
}

void MapCanvas::setFiles(const LocatedFilesPtr &files)
{
    _focused.reset();
    _hovered = -1;
    _marks.setFiles(files);
    _areMarksOld = true;
    if (!_isMoved)
        setView(viewOfAll(), false);
    update();
}

void MapCanvas::setCurrent(std::optional<quint32> file)
{
    if (std::exchange(_current, file) != file)
        update();
}

void MapCanvas::setType(MapType type)
{
    if (type == _view.type)
        return;
    const Location middle = unflattened(_view.type, _view.centre);
    MapView view = _view;
    view.type = type;
    view.centre = flattened(type, middle);
    setView(view.bounded(), _isMoved);
}

void MapCanvas::showAll()
{
    _isMoved = false;
    setView(viewOfAll(), false);
}

void MapCanvas::zoomIn()
{
    setView(_view.zoomed(kStep, QRectF(rect()).center()), true);
}

void MapCanvas::zoomOut()
{
    setView(_view.zoomed(1 / kStep, QRectF(rect()).center()), true);
}

void MapCanvas::showLocation(const Location &location)
{
    const QPointF flat = flattened(_view.type, location);
    MapView view = MapView::fitting(_view.type, size(), QRectF(flat, flat));
    view.worldWidth = std::max(view.worldWidth, _view.worldWidth);
    setView(view.bounded(), true);
}

const MapMarks &MapCanvas::marks()
{
    if (std::exchange(_areMarksOld, false))
        _marks.arrange(_view, font());
    return _marks;
}

MapView MapCanvas::viewOfAll() const
{
    const LocatedFilesPtr &all = files();
    if (!all || all->points.empty())
        return MapView::wholeWorld(_view.type, size());
    const QRectF bounds = boundsOf(all->points);
    // What is one mark on the map of a town is shown there, where names tell which part of the Earth it is.
    const MapView town = MapView::fitting(_view.type, size(), QRectF(bounds.center(), bounds.center()));
    const bool isOneMark = std::max(bounds.width(), bounds.height()) * town.worldWidth < kOneMark;
    return isOneMark ? town : MapView::fitting(_view.type, size(), bounds);
}

void MapCanvas::setView(const MapView &view, bool byUser)
{
    _isMoved = _isMoved || byUser;
    if (view == _view)
        return;
    _view = view;
    _areMarksOld = true;
    _hovered = -1;
    update();
    Q_EMIT viewDidChange();
}

MapLook MapCanvas::look() const
{
    return {mapColorsOf(palette()), font(), devicePixelRatioF()};
}

int MapCanvas::focusedMark()
{
    return hasFocus() ? marks().markOf(_focused) : -1;
}

void MapCanvas::setFocused(int mark)
{
    _focused.reset();
    if (mark >= 0)
        _focused = marks().filesOf(mark).front();
    tellReached(mark);
    update();
}

void MapCanvas::tellReached(int mark)
{
    Q_EMIT filesReached(mark < 0 ? std::vector<quint32>() : marks().filesOf(mark));
}

void MapCanvas::activate(int mark, bool adds)
{
    const std::vector<quint32> chosen = marks().filesOf(mark);
    if (adds || chosen.size() == 1)
        Q_EMIT filesChosen(chosen, adds);
    else if (_marks.isOneSpot(mark))
        Q_EMIT spotOpened(chosen, mapToGlobal(_marks.middleOf(mark).toPoint()));
    else
        setView(MapView::fitting(_view.type, size(), _marks.boundsOf(mark)), true);
}

bool MapCanvas::focusNextPrevChild(bool next)
{
    const int mark = marks().next(focusedMark(), !next);
    setFocused(mark);
    return mark >= 0 || QWidget::focusNextPrevChild(next);
}

void MapCanvas::keyPressEvent(QKeyEvent *event)
{
    if (!handleKey(event->key()))
        return event->ignore();
    const bool adds = event->modifiers().testFlag(Qt::ControlModifier);
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (const int mark = focusedMark(); isReturn && mark >= 0)
        activate(mark, adds);
}

bool MapCanvas::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomIn();
        return true;
    case Qt::Key_Minus:
        zoomOut();
        return true;
    case Qt::Key_Home:
        showAll();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    default:
        break;
    }
    const QPointF way = panOf(key);
    if (way.isNull())
        return false;
    setView(_view.panned(way), true);
    return true;
}

void MapCanvas::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    _pressed = _pointer = event->position();
    _drag = event->modifiers().testFlag(Qt::ShiftModifier) ? Drag::Box : Drag::Click;
}

void MapCanvas::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF before = std::exchange(_pointer, event->position());
    if (_drag == Drag::Click
        && (_pointer - _pressed).manhattanLength() >= QApplication::startDragDistance()) {
        _drag = Drag::Move;
        setCursor(Qt::ClosedHandCursor);
        return setView(_view.panned(_pointer - _pressed), true);
    }
    if (_drag == Drag::Move)
        setView(_view.panned(_pointer - before), true);
    else if (_drag == Drag::Box)
        update();
    else if (const int mark = marks().at(_pointer); std::exchange(_hovered, mark) != mark)
        tellReached(mark);
    if (_drag == Drag::None)
        setCursor(_hovered >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void MapCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    _pointer = event->position();
    const bool adds = event->modifiers().testFlag(Qt::ControlModifier);
    const Drag drag = std::exchange(_drag, Drag::None);
    unsetCursor();
    update();
    if (drag == Drag::Box) {
        if (const auto chosen = marks().filesIn(box()); !chosen.empty())
            Q_EMIT filesChosen(chosen, adds);
    } else if (const int mark = marks().at(_pointer); drag == Drag::Click && mark >= 0) {
        setFocused(mark);
        activate(mark, adds);
    }
}

void MapCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && marks().at(event->position()) < 0)
        setView(_view.zoomed(kStep, event->position()), true);
}

void MapCanvas::wheelEvent(QWheelEvent *event)
{
    setView(_view.zoomed(std::exp2(event->angleDelta().y() / kWheelStep), event->position()), true);
    event->accept();
}

void MapCanvas::contextMenuEvent(QContextMenuEvent *event)
{
    int mark = marks().at(event->pos());
    QPointF place = event->pos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        mark = focusedMark();
        place = mark >= 0 ? _marks.middleOf(mark) : QRectF(rect()).center();
    }
    const auto chosen = mark >= 0 ? _marks.filesOf(mark) : std::vector<quint32>();
    const Location there = chosen.size() == 1 ? files()->locations[chosen.front()]
                                              : unflattened(_view.type, _view.toFlat(place));
    Q_EMIT menuWanted(chosen, there, mapToGlobal(place.toPoint()));
}

bool MapCanvas::event(QEvent *event)
{
    if (event->type() == QEvent::Leave && std::exchange(_hovered, -1) >= 0)
        tellReached(-1);
    return QWidget::event(event);
}

void MapCanvas::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    _areMarksOld = true;
    update();
}

void MapCanvas::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    MapView view = _view;
    view.size = size();
    setView(_isMoved ? view.bounded() : viewOfAll(), false);
}

void MapCanvas::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    _backdrop.paint(painter, _view, look());
    paintMap(painter);
    if (_drag == Drag::Box) {
        QColor fill = palette().color(QPalette::Highlight);
        painter.setPen(fill);
        fill.setAlphaF(0.2F);
        painter.fillRect(box(), fill);
        painter.drawRect(box());
    }
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void MapCanvas::paintMap(QPainter &painter)
{
    // A map is not mirrored, and neither is what stands on it.
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font());
    paintScaleBar(painter, _view, mapColorsOf(palette()));
    marks().paint(painter, palette(), marks().markOf(_current), focusedMark());
    paintOver(painter);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void MapCanvas::paintOver(QPainter &painter)
{
    const auto note = [&](const QString &text, Qt::Alignment place) {
        QRectF room = QRectF(rect()).adjusted(kAir, kAir, -kAir, -kAir);
        room = painter.boundingRect(room, static_cast<int>(place) | Qt::TextWordWrap, text);
        QColor ground = palette().color(QPalette::Base);
        ground.setAlphaF(kNoteShare);
        painter.fillRect(room.adjusted(-kAir, -kAir / 2, kAir, kAir / 2), ground);
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(room, static_cast<int>(place) | Qt::TextWordWrap, text);
    };
    note(tr("Natural Earth · GeoNames, CC BY 4.0"), Qt::AlignRight | Qt::AlignBottom);
    if (files() && files()->points.empty())
        note(tr("No file of the list tells where it was recorded."), Qt::AlignCenter);
}

QImage MapCanvas::picture()
{
    MapLook fine = look();
    fine.ratio = kPictureRatio;
    QImage image = pictureOfEarth(_view, fine);
    QPainter painter(&image);
    paintMap(painter);
    return image;
}

} // namespace quorvin
