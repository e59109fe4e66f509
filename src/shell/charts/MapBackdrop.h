// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/BaseMap.h"
#include "places/MapView.h"
#include "shell/desktop/BackgroundRun.h"

#include <QFont>
#include <QImage>
#include <QObject>
#include <QPalette>

class QPainter;

namespace quorvin {

/// What the Earth is painted with beside text of that palette.
MapColors mapColorsOf(const QPalette &palette);

/// How a picture of the map is painted.
struct MapLook {
    MapColors colors;
    QFont font; ///< of the names of towns
    double ratio = 1; ///< device's pixels a pixel

    bool operator==(const MapLook &) const = default;
};

/// The Earth, with the names of its towns. Any thread.
QImage pictureOfEarth(const MapView &view, const MapLook &look);

/// The Earth behind the marks of a map. It is painted in the background, larger than what is looked at, so
/// that it can be moved; until a new picture is there, the last one is shown where it lies. Main thread.
class MapBackdrop : public QObject {
    Q_OBJECT
public:
    explicit MapBackdrop(QObject *parent);

    /// Paints what there is of the view, and sees to it that all of it comes.
    void paint(QPainter &painter, const MapView &view, const MapLook &look);

Q_SIGNALS:
    /// There is a better picture of what was painted last.
    void didChange();

private:
    struct Picture {
        MapView view; ///< what is on it
        MapLook look;
        QImage image; ///< null before the first
    };

    static bool fits(const Picture &picture, const MapView &view, const MapLook &look);
    void want(const MapView &view, const MapLook &look);

    Picture _picture;
    BackgroundRun<Picture> _run{this};
};

} // namespace quorvin
