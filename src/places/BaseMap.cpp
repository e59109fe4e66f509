// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/BaseMap.h"

#include "model/Log.h"
#include "places/Graticule.h"

#include <QPainter>
#include <QPainterPath>
#include <QResource>

/// In no namespace, as its like in the generated source.
static void initBaseMapResource()
{
    Q_INIT_RESOURCE(basemap);
}

namespace quorvin {

namespace {

/// From how many pixels for the whole Earth on there is room for these.
constexpr double kRiversFrom = 2500;
constexpr double kStatesFrom = 3500;

constexpr double kLineWidth = 1;
constexpr double kFineLineWidth = 0.7;
constexpr double kDetail = 0.6;

ArcLayers layersOfProgram()
{
    initBaseMapResource();
    const QByteArray bytes = QResource(QStringLiteral(":/places/basemap")).uncompressedData();
    auto layers = baseMapFromBytes({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (!layers)
        qCWarning(lcQuorvin, "The program was built with a damaged base map");
    return layers.value_or(ArcLayers());
}

/// Paths of one view, and how they are painted.
class MapPainter {
public:
    MapPainter(QPainter &painter, const MapView &view)
        : _painter(painter), _paths(view, kDetail / painter.device()->devicePixelRatioF())
    {
    }

    void fill(const std::vector<FlatShape> &areas, const QColor &color)
    {
        // Joined to one path they would be filled several times slower.
        for (const FlatShape &area : areas) {
            if (const QPainterPath path = _paths.areaPath(area); !path.isEmpty())
                _painter.fillPath(path, color);
        }
    }

    void stroke(const std::vector<FlatShape> &lines, const QColor &color, double width)
    {
        QPainterPath path;
        for (const FlatShape &line : lines)
            _paths.addLine(path, line);
        _painter.strokePath(path, QPen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
    }

private:
    QPainter &_painter;
    PathMaker _paths;
};

} // namespace

const BaseMap &BaseMap::instance()
{
    static const BaseMap map;
    return map;
}

BaseMap::BaseMap()
{
    const ArcLayers arcs = layersOfProgram();
    for (const MapType type : {MapType::WebMercator, MapType::WholeEarth})
        _layers[static_cast<std::size_t>(type)] = flatLayers(type, arcs);
}

const std::vector<FlatShape> &BaseMap::shapes(MapType type, MapLayer layer) const
{
    return _layers[static_cast<std::size_t>(type)][static_cast<std::size_t>(layer)];
}

void BaseMap::paint(QPainter &painter, const MapView &view, const MapColors &colors) const
{
    const QRectF picture({0, 0}, view.size);
    const QRectF world = flatWorld(view.type);
    const QRectF worldPixels{view.toPixel(world.topLeft()), view.toPixel(world.bottomRight())};
    painter.save();
    painter.setClipRect(picture, Qt::IntersectClip);
    painter.fillRect(picture, colors.beyond.isValid() ? colors.beyond : colors.sea);
    painter.setClipRect(picture & worldPixels, Qt::IntersectClip);
    painter.fillRect(picture & worldPixels, colors.sea);

    painter.setRenderHint(QPainter::Antialiasing);
    MapPainter map(painter, view);
    map.fill(shapes(view.type, MapLayer::Land), colors.land);
    map.fill(shapes(view.type, MapLayer::Lakes), colors.lake);
    if (view.worldWidth >= kRiversFrom)
        map.stroke(shapes(view.type, MapLayer::Rivers), colors.river, kFineLineWidth);
    painter.setPen(QPen(colors.graticule, kFineLineWidth));
    paintGraticule(painter, view);
    if (view.worldWidth >= kStatesFrom)
        map.stroke(shapes(view.type, MapLayer::States), colors.state, kFineLineWidth);
    map.stroke(shapes(view.type, MapLayer::Borders), colors.border, kLineWidth);
    painter.restore();
}

} // namespace quorvin
