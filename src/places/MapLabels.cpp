// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/MapLabels.h"

#include "places/Towns.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace quorvin {

namespace {

/// Pixels of the picture for each name, so that a map stays a map.
constexpr double kPixelsPerName = 16'000;
/// How many towns in view are tried for each name that there is room for.
constexpr std::size_t kTriesPerName = 6;
constexpr double kDotRadius = 2;
constexpr double kHalo = 1.2;
constexpr double kGap = 4;

constexpr double kMostBarPixels = 120;
constexpr double kBarEnds = 5;
constexpr double kBarMargin = 12;
constexpr double kMetresOfKilometre = 1000;

/// A text with a halo around it; `baseline` is where it begins. As often drawn as the halo has sides, which
/// the painter's store of letters makes much cheaper than their outlines.
void paintText(QPainter &painter, const QPointF &baseline, const QString &text, const MapColors &colors)
{
    painter.setPen(colors.halo);
    for (const double across : {-kHalo, 0.0, kHalo}) {
        for (const double along : {-kHalo, 0.0, kHalo})
            painter.drawText(baseline + QPointF(across, along), text);
    }
    painter.setPen(colors.text);
    painter.drawText(baseline, text);
}

void paintDot(QPainter &painter, const QPointF &middle, const MapColors &colors)
{
    painter.setPen(QPen(colors.halo, 1));
    painter.setBrush(colors.text);
    painter.drawEllipse(middle, kDotRadius, kDotRadius);
}

bool isWithin(const Location &location, const Location &northWest, const Location &southEast)
{
    return location.latitude <= northWest.latitude && location.latitude >= southEast.latitude
        && location.longitude >= northWest.longitude && location.longitude <= southEast.longitude;
}

bool isFree(const QRectF &place, const TakenPlaces &taken)
{
    return std::none_of(taken.begin(), taken.end(),
                        [&place](const QRectF &other) { return other.intersects(place); });
}

/// Right or left of the dot, wherever there is room for it with its name.
struct TownLabel {
    QRectF place;
    QPointF baseline;
};
std::array<TownLabel, 2> labelsFor(const QPointF &dot, double width, const QFontMetricsF &metrics)
{
    const auto label = [&](double begin) {
        const QRectF name(dot.x() + begin, dot.y() - metrics.height() / 2, width, metrics.height());
        const QRectF mark(dot.x() - kDotRadius, dot.y() - kDotRadius, 2 * kDotRadius, 2 * kDotRadius);
        return TownLabel{name | mark, {name.left(), name.top() + metrics.ascent()}};
    };
    return {label(kDotRadius + kGap), label(-kDotRadius - kGap - width)};
}

QString lengthText(double metres)
{
    QLocale locale;
    // The plain locale leaves the separators out.
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::NumberOptions(QLocale::OmitGroupSeparator));
    const bool isLong = metres >= kMetresOfKilometre;
    const auto number = static_cast<int>(std::lround(isLong ? metres / kMetresOfKilometre : metres));
    return locale.toString(number) + (isLong ? QStringLiteral(" km") : QStringLiteral(" m"));
}

} // namespace

TakenPlaces paintTownNames(QPainter &painter, const MapView &view, const MapColors &colors,
                           const Towns &towns, TakenPlaces taken)
{
    const QRectF picture({0, 0}, view.size);
    const auto most = static_cast<std::size_t>(picture.width() * picture.height() / kPixelsPerName) + 1;
    const QFontMetricsF metrics(painter.font());
    TakenPlaces painted;
    std::size_t tries = 0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const Location northWest = unflattened(view.type, view.toFlat({0, 0}));
    const Location southEast = unflattened(view.type, view.toFlat({view.size.width(), view.size.height()}));
    for (const Town &town : towns.towns()) {
        if (!isWithin(town.location, northWest, southEast))
            continue;
        const QPointF dot = view.toPixel(flattened(view.type, town.location));
        if (painted.size() == most || ++tries > most * kTriesPerName)
            break;
        for (const TownLabel &label : labelsFor(dot, metrics.horizontalAdvance(town.name), metrics)) {
            if (!picture.contains(label.place) || !isFree(label.place, taken))
                continue;
            paintDot(painter, dot, colors);
            paintText(painter, label.baseline, town.name, colors);
            taken.push_back(label.place);
            painted.push_back(label.place);
            break;
        }
    }
    painter.restore();
    return painted;
}

ScaleBar scaleBarOf(const MapView &view)
{
    const double latitude = unflattened(view.type, view.centre).latitude * std::numbers::pi / 180;
    // At a pole a degree has no length at all.
    const double metresOfPixel = std::max(std::cos(latitude), 1e-3) * kEquatorMetres / view.worldWidth;
    const double most = kMostBarPixels * metresOfPixel;
    const double tens = std::pow(10, std::floor(std::log10(most)));
    const double metres = most >= 5 * tens ? 5 * tens : most >= 2 * tens ? 2 * tens : tens;
    return {metres, metres / metresOfPixel};
}

QRectF paintScaleBar(QPainter &painter, const MapView &view, const MapColors &colors)
{
    const ScaleBar bar = scaleBarOf(view);
    const QString text = lengthText(bar.metres);
    const QFontMetricsF metrics(painter.font());
    const QPointF begin(kBarMargin, view.size.height() - kBarMargin);
    const QPointF end = begin + QPointF(bar.pixels, 0);
    const QPointF up(0, -kBarEnds);
    const std::array line{begin + up, begin, end, end + up};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QPen &pen : {QPen(colors.halo, 1 + 2 * kHalo), QPen(colors.text, 1)}) {
        painter.setPen(pen);
        painter.drawPolyline(line.data(), static_cast<int>(line.size()));
    }
    paintText(painter, begin + up + QPointF(0, -metrics.descent()), text, colors);
    painter.restore();
    const double width = std::max(bar.pixels, metrics.horizontalAdvance(text));
    return {begin.x(), begin.y() - kBarEnds - metrics.height(), width, kBarEnds + metrics.height()};
}

} // namespace quorvin
