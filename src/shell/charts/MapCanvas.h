// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/MapView.h"
#include "shell/charts/MapBackdrop.h"
#include "shell/charts/MapMarks.h"

#include <QImage>
#include <QPointF>
#include <QWidget>

#include <optional>
#include <vector>

namespace quorvin {

/// The map: the Earth with the files of a list on it, moved and enlarged by mouse and keyboard. Shows all
/// files until the user has moved it. Files go by their place in `LocatedFiles`. Main thread.
class MapCanvas final : public QWidget {
    Q_OBJECT
public:
    explicit MapCanvas(QWidget *parent = nullptr);

    void setFiles(const LocatedFilesPtr &files);
    /// Null before there are any.
    const LocatedFilesPtr &files() const { return _marks.files(); }
    /// That file has a ring.
    void setCurrent(std::optional<quint32> file);
    void setType(MapType type);

    const MapView &view() const { return _view; }
    void showAll();
    void zoomIn();
    void zoomOut();
    /// It stands in the middle; what is farther away than the next town comes nearer.
    void showLocation(const Location &location);
    /// The marks with what is known of them, for tests and readers.
    const MapMarks &marks();
    /// What is shown, at twice its size in the device's pixels.
    QImage picture();

Q_SIGNALS:
    void filesChosen(const std::vector<quint32> &files, bool adds);
    /// Files that no scale parts, at that place of the screen.
    void spotOpened(const std::vector<quint32> &files, const QPoint &where);
    void menuWanted(const std::vector<quint32> &files, const quorvin::Location &location,
                    const QPoint &where);
    void viewDidChange();
    /// The keyboard or the pointer is at these files; none: it is at none.
    void filesReached(const std::vector<quint32> &files);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    /// What the pressed button does.
    enum class Drag { None, Click, Move, Box };

    void setView(const MapView &view, bool byUser);
    MapView viewOfAll() const;
    MapLook look() const;
    bool handleKey(int key);
    /// As a click on it.
    void activate(int mark, bool adds);
    void setFocused(int mark);
    int focusedMark();
    QRectF box() const { return QRectF(_pressed, _pointer).normalized(); }
    void paintOver(QPainter &painter);
    void paintMap(QPainter &painter);
    void tellReached(int mark);

    MapBackdrop _backdrop{this};
    MapMarks _marks;
    MapView _view;
    std::optional<quint32> _current;
    std::optional<quint32> _focused; ///< a file of the mark with the keyboard
    QPointF _pressed;
    QPointF _pointer;
    Drag _drag = Drag::None;
    int _hovered = -1;
    bool _isMoved = false; ///< the user has chosen what is shown
    bool _areMarksOld = true;
};

} // namespace quorvin
