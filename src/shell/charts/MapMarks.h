// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/Clusters.h"
#include "places/MapView.h"
#include "shell/charts/LocatedFiles.h"

#include <QFont>
#include <QPointF>
#include <QRectF>

#include <optional>
#include <span>
#include <vector>

class QPainter;
class QPalette;

namespace quorvin {

/// The files on a map, as marks: a dot for one file, a number for those that stand near each other. Files go
/// by their place in `LocatedFiles`, marks by a number that holds until they are arranged anew. Main thread.
class MapMarks {
public:
    void setFiles(const LocatedFilesPtr &files);
    /// Null before there are any.
    const LocatedFilesPtr &files() const { return _files; }
    /// The marks of that view, in that font.
    void arrange(const MapView &view, const QFont &font);

    /// -1 where there is none.
    int at(const QPointF &pixel) const;
    /// The mark that the file is in; -1 when it is out of view.
    int markOf(std::optional<quint32> file) const;
    /// What is in it.
    std::vector<quint32> filesOf(int mark) const;
    qsizetype sizeOf(int mark) const { return _clusters.clusters[static_cast<std::size_t>(mark)].size; }
    QPointF middleOf(int mark) const { return _clusters.clusters[static_cast<std::size_t>(mark)].middle; }
    /// The flat part of the Earth that its files stand in.
    QRectF boundsOf(int mark) const;
    /// No scale would show its files as several marks.
    bool isOneSpot(int mark) const;
    /// The files whose points stand there, in pixels of the view.
    std::vector<quint32> filesIn(const QRectF &pixels) const;
    /// The next one in view to the east, or to the west; behind the last one, and without any, -1. From -1
    /// the first.
    int next(int mark, bool toWest) const;

    /// Two marks stand out: the one with the current file and the one with the keyboard; -1 for none.
    void paint(QPainter &painter, const QPalette &palette, int current, int focused) const;

private:
    QRectF rectOf(int mark) const;
    int count() const { return static_cast<int>(_clusters.clusters.size()); }
    std::span<const quint32> membersOf(int mark) const;

    LocatedFilesPtr _files;
    MapView _view;
    QFont _font;
    MapClusters _clusters;
    std::vector<int> _eastward; ///< the marks in view, from west to east
};

} // namespace quorvin
