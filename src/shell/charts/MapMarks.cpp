// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/MapMarks.h"

#include "shell/desktop/Contrast.h"
#include "shell/desktop/Counts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace quorvin {

namespace {

constexpr double kDotRadius = 5;
constexpr double kLeastTarget = 9; ///< so far from the middle of a dot it can be hit
constexpr double kNumberAir = 5; ///< beside a number
constexpr double kRing = 3;

} // namespace

void MapMarks::setFiles(const LocatedFilesPtr &files)
{
    _files = files;
    _clusters = {};
    _eastward.clear();
}

void MapMarks::arrange(const MapView &view, const QFont &font)
{
    _view = view;
    _font = font;
    _clusters = _files ? clustersOf(_files->points, view) : MapClusters();
    _eastward.clear();
    const QRectF inView({}, view.size);
    for (int mark = 0; mark < count(); ++mark)
        if (inView.contains(middleOf(mark)))
            _eastward.push_back(mark);
    std::ranges::stable_sort(_eastward, {}, [this](int mark) { return middleOf(mark).x(); });
}

int MapMarks::at(const QPointF &pixel) const
{
    // The small ones are painted over the large ones.
    for (int mark = count() - 1; mark >= 0; --mark) {
        const QRectF rect = rectOf(mark);
        const double air = std::max(0.0, kLeastTarget - rect.height() / 2);
        if (rect.adjusted(-air, -air, air, air).contains(pixel))
            return mark;
    }
    return -1;
}

int MapMarks::markOf(std::optional<quint32> file) const
{
    for (int mark = 0; file && mark < count(); ++mark)
        if (std::ranges::binary_search(membersOf(mark), *file))
            return mark;
    return -1;
}

std::span<const quint32> MapMarks::membersOf(int mark) const
{
    return _clusters.membersOf(_clusters.clusters[static_cast<std::size_t>(mark)]);
}

std::vector<quint32> MapMarks::filesOf(int mark) const
{
    const auto members = membersOf(mark);
    return {members.begin(), members.end()};
}

QRectF MapMarks::boundsOf(int mark) const
{
    return quorvin::boundsOf(_files->points, membersOf(mark));
}

bool MapMarks::isOneSpot(int mark) const
{
    const QRectF bounds = boundsOf(mark);
    const MapView closest = MapView::fitting(_view.type, _view.size, bounds);
    return std::max(bounds.width(), bounds.height()) * closest.worldWidth < kClusterPixels;
}

std::vector<quint32> MapMarks::filesIn(const QRectF &pixels) const
{
    std::vector<quint32> files;
    if (!_files)
        return files;
    const QRectF flat(_view.toFlat(pixels.topLeft()), _view.toFlat(pixels.bottomRight()));
    for (const MapPoint &point : _files->points)
        if (flat.contains(point.flat))
            files.push_back(point.file);
    return files;
}

int MapMarks::next(int mark, bool toWest) const
{
    const auto found = std::ranges::find(_eastward, mark);
    const auto place = static_cast<qsizetype>(found - _eastward.begin());
    const auto size = static_cast<qsizetype>(_eastward.size());
    qsizetype other = toWest ? place - 1 : place + 1;
    if (found == _eastward.end())
        other = toWest ? size - 1 : 0;
    return other >= 0 && other < size ? _eastward[static_cast<std::size_t>(other)] : -1;
}

QRectF MapMarks::rectOf(int mark) const
{
    QSizeF size(kDotRadius * 2, kDotRadius * 2);
    if (sizeOf(mark) > 1) {
        const QFontMetricsF metrics(_font);
        const double height = metrics.height() + kNumberAir;
        size = {std::max(height, metrics.horizontalAdvance(groupedCount(sizeOf(mark))) + 2 * kNumberAir),
                height};
    }
    const QPointF half(size.width() / 2, size.height() / 2);
    return {middleOf(mark) - half, size};
}

void MapMarks::paint(QPainter &painter, const QPalette &palette, int current, int focused) const
{
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor page = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    painter.setFont(_font);
    for (int mark = 0; mark < count(); ++mark) {
        const QRectF rect = rectOf(mark);
        const double radius = rect.height() / 2;
        for (const bool isFocus : {true, false}) {
            if (mark != (isFocus ? focused : current))
                continue;
            const double air = isFocus ? kRing * 2 : kRing;
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(text, isFocus ? 1 : 2, isFocus ? Qt::DotLine : Qt::SolidLine));
            painter.drawRoundedRect(rect.adjusted(-air, -air, air, air), radius + air, radius + air);
        }
        painter.setPen(QPen(page, 1.5));
        painter.setBrush(accent);
        painter.drawRoundedRect(rect, radius, radius);
        if (sizeOf(mark) == 1)
            continue;
        painter.setPen(palette.color(QPalette::Active, QPalette::HighlightedText));
        painter.drawText(rect, Qt::AlignCenter, groupedCount(sizeOf(mark)));
    }
}

} // namespace quorvin
