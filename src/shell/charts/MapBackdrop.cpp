// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/MapBackdrop.h"

#include "places/MapLabels.h"
#include "places/Towns.h"
#include "shell/desktop/Contrast.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace quorvin {

namespace {

constexpr double kBackdropMargin = 0.3; ///< of what is looked at, on each side
constexpr double kLandShare = 0.04;
constexpr double kSeaShare = 0.16;
constexpr double kGraticuleShare = 0.10;
constexpr double kStateShare = 0.22;
constexpr double kBorderShare = 0.45;
constexpr double kRiverShare = 0.45;
constexpr double kNameShare = 0.80;

} // namespace

MapColors mapColorsOf(const QPalette &palette)
{
    const QColor page = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor land = between(page, text, kLandShare);
    const QColor sea = between(page, accent, kSeaShare);
    return {.sea = sea,
            .land = land,
            .lake = sea,
            .river = between(land, accent, kRiverShare),
            .border = between(land, text, kBorderShare),
            .state = between(land, text, kStateShare),
            .graticule = between(sea, text, kGraticuleShare),
            .text = between(land, text, kNameShare),
            .halo = land,
            .beyond = palette.color(QPalette::Active, QPalette::Window)};
}

QImage pictureOfEarth(const MapView &view, const MapLook &look)
{
    QImage image((view.size * look.ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(look.ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(look.font);
    BaseMap::instance().paint(painter, view, look.colors);
    paintTownNames(painter, view, look.colors, Towns::instance(), {});
    return image;
}

MapBackdrop::MapBackdrop(QObject *parent) : QObject(parent) { }

void MapBackdrop::paint(QPainter &painter, const MapView &view, const MapLook &look)
{
    painter.fillRect(QRectF({}, view.size), look.colors.sea);
    if (!_picture.image.isNull() && _picture.view.type == view.type) {
        const QRectF flat = _picture.view.flatRect();
        const QRectF place(view.toPixel(flat.topLeft()), view.toPixel(flat.bottomRight()));
        // Scaling takes its time, even by 1.
        if (_picture.view.worldWidth == view.worldWidth)
            painter.drawImage(place.topLeft().toPoint(), _picture.image);
        else
            painter.drawImage(place, _picture.image);
    }
    if (!fits(_picture, view, look))
        want(view, look);
}

bool MapBackdrop::fits(const Picture &picture, const MapView &view, const MapLook &look)
{
    return !picture.image.isNull() && picture.view.type == view.type && picture.look == look
        && picture.view.worldWidth == view.worldWidth && picture.view.flatRect().contains(view.flatRect());
}

void MapBackdrop::want(const MapView &view, const MapLook &look)
{
    // The one under way shows whoever asks that another is wanted when it is there.
    if (_run.isUnderWay() || view.size.isEmpty())
        return;
    MapView larger = view;
    // Whole pixels, so that the picture is not blurred where it is moved to.
    const QSizeF margin(std::ceil(view.size.width() * kBackdropMargin),
                        std::ceil(view.size.height() * kBackdropMargin));
    larger.size += margin * 2;
    _run.start(
        "MapBackdrop",
        [larger, look](const RunControl &) {
            return Picture{larger, look, pictureOfEarth(larger, look)};
        },
        [this](Picture picture) {
            _picture = std::move(picture);
            Q_EMIT didChange();
        });
}

} // namespace quorvin
