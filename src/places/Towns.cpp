// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/Towns.h"

#include "places/GeonamesLibrary.h"
#include "places/Projection.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <numbers>
#include <utility>

namespace quorvin {

namespace {

/// Texts that many towns share are kept once.
class SharedTexts {
public:
    QString text(const char *utf8)
    {
        QString &text = _texts[QByteArray(utf8)];
        if (text.isNull())
            text = QString::fromUtf8(utf8);
        return text;
    }

private:
    QHash<QByteArray, QString> _texts;
};

std::vector<Town> townsOfLibrary()
{
    const GeonamesLibrary library;
    const auto free = [&library](GeonamesCity *city) { library.freeCity(city); };
    SharedTexts shared;
    std::vector<Town> towns;
    const int count = library.count();
    towns.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int number = 0; number < count; ++number) {
        const std::unique_ptr<GeonamesCity, decltype(free)> city(library.city(number), free);
        if (!city)
            continue;
        const Location location{library.latitude(city.get()), library.longitude(city.get())};
        towns.push_back({QString::fromUtf8(library.name(city.get())), shared.text(library.state(city.get())),
                         shared.text(library.country(city.get())), shared.text(library.timeZone(city.get())),
                         location, library.population(city.get())});
    }
    return towns;
}

constexpr std::size_t kAxes = 3;

} // namespace

const Towns &Towns::instance()
{
    static const Towns towns(townsOfLibrary());
    return towns;
}

Towns::Towns(std::vector<Town> towns) : _towns(std::move(towns))
{
    std::erase_if(_towns, [](const Town &town) { return !isPossible(town.location); });
    std::stable_sort(_towns.begin(), _towns.end(),
                     [](const Town &one, const Town &other) { return one.population > other.population; });
    _nodes.reserve(_towns.size());
    for (const Town &town : _towns)
        _nodes.push_back({pointOf(town.location), static_cast<quint32>(_nodes.size())});
    arrange(_nodes, 0);
}

std::optional<NearestTown> Towns::nearest(const Location &location) const
{
    if (_towns.empty() || !isPossible(location))
        return {};
    Found found{std::numeric_limits<double>::max(), 0};
    search(_nodes, 0, pointOf(location), found);
    const Town &town = _towns[found.town];
    return NearestTown{&town, metresBetween(town.location, location), bearing(town.location, location)};
}

Towns::Point Towns::pointOf(const Location &location)
{
    const double latitude = location.latitude * std::numbers::pi / 180;
    const double longitude = location.longitude * std::numbers::pi / 180;
    return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude),
            std::sin(latitude)};
}

void Towns::arrange(std::span<Node> nodes, std::size_t axis)
{
    if (nodes.size() < 2)
        return;
    const std::size_t middle = nodes.size() / 2;
    std::nth_element(
        nodes.begin(), nodes.begin() + static_cast<std::ptrdiff_t>(middle), nodes.end(),
        [axis](const Node &one, const Node &other) { return one.point[axis] < other.point[axis]; });
    arrange(nodes.first(middle), (axis + 1) % kAxes);
    arrange(nodes.subspan(middle + 1), (axis + 1) % kAxes);
}

void Towns::search(std::span<const Node> nodes, std::size_t axis, const Point &point, Found &found)
{
    if (nodes.empty())
        return;
    const std::size_t middle = nodes.size() / 2;
    const Node &node = nodes[middle];
    double square = 0;
    for (std::size_t place = 0; place < kAxes; ++place)
        square += (node.point[place] - point[place]) * (node.point[place] - point[place]);
    // Of towns on one spot the most populous.
    if (square < found.square || (square == found.square && node.town < found.town))
        found = {square, node.town};
    const double beyond = point[axis] - node.point[axis];
    const std::span<const Node> near = beyond < 0 ? nodes.first(middle) : nodes.subspan(middle + 1);
    const std::span<const Node> far = beyond < 0 ? nodes.subspan(middle + 1) : nodes.first(middle);
    search(near, (axis + 1) % kAxes, point, found);
    if (beyond * beyond <= found.square)
        search(far, (axis + 1) % kAxes, point, found);
}

} // namespace quorvin
