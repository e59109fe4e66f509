// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/basemap/Pn2File.h"

#include <cstdlib>
#include <utility>

namespace quorvin {

namespace {

constexpr std::uint8_t kPn2Version = 2;
constexpr int kMostLatitude = 90 * kArcPointsPerDegree;
constexpr int kMostLongitude = 180 * kArcPointsPerDegree;

constexpr std::uint32_t kLineFeature = 0;
constexpr std::uint32_t kOuterBoundary = 2;
constexpr std::uint32_t kInnerBoundary = 3;
constexpr std::uint32_t kSeveralFeatures = 4;

/// Numbers have their high byte first. Reading beyond the end gives zeros and is remembered.
class Pn2Reader {
public:
    explicit Pn2Reader(std::string_view bytes) : _bytes(bytes) { }

    bool isAtEnd() const { return _place >= _bytes.size(); }
    bool hasFailed() const { return _place > _bytes.size(); }
    std::size_t place() const { return _place; }

    std::uint32_t number(int bytes)
    {
        std::uint32_t number = 0;
        for (; bytes > 0; --bytes, ++_place)
            number = number << 8 | (_place < _bytes.size() ? static_cast<unsigned char>(_bytes[_place]) : 0U);
        return number;
    }
    int signedByte() { return static_cast<std::int8_t>(number(1)); }
    int signedShort() { return static_cast<std::int16_t>(number(2)); }

private:
    std::string_view _bytes;
    std::size_t _place = 0;
};

/// False when the point is not on the Earth.
bool append(ArcLine &line, int latitude, int longitude)
{
    if (std::abs(latitude) > kMostLatitude || std::abs(longitude) > kMostLongitude)
        return false;
    line.push_back({static_cast<std::int16_t>(latitude), static_cast<std::int16_t>(longitude)});
    return true;
}

/// Chunks of a point and the distances of others from it. False when it is damaged.
bool readChunks(Pn2Reader &reader, ArcLine &line)
{
    for (std::uint32_t chunks = reader.number(4); chunks > 0; --chunks) {
        const int latitude = reader.signedShort();
        const int longitude = reader.signedShort();
        if (!append(line, latitude, longitude))
            return false;
        for (int others = reader.signedShort(); others > 0; --others) {
            const int north = reader.signedByte();
            const int east = reader.signedByte();
            if (!append(line, latitude + north, longitude + east))
                return false;
        }
        if (reader.hasFailed())
            return false;
    }
    return true;
}

} // namespace

tl::expected<std::vector<ArcShape>, std::string> shapesOfPn2(std::string_view bytes)
{
    Pn2Reader reader(bytes);
    if (reader.number(1) != kPn2Version)
        return tl::unexpected(std::string("is not of version 2 of PN2"));
    const std::uint32_t features = reader.number(4);
    const bool hasColors = reader.number(1) != 0;
    std::vector<ArcShape> shapes;
    std::uint32_t found = 0;
    while (!reader.isAtEnd()) {
        const std::size_t begin = reader.place();
        const std::uint32_t kind = reader.number(1);
        reader.number(4); // its id
        if (kind == kSeveralFeatures) { // their count; they follow like all others
            reader.number(1);
            continue;
        }
        if (hasColors)
            reader.number(1);
        ArcLine line;
        if ((kind != kLineFeature && kind != kOuterBoundary && kind != kInnerBoundary)
            || !readChunks(reader, line))
            return tl::unexpected("is damaged in the feature at byte " + std::to_string(begin));
        ++found;
        if (kind == kInnerBoundary && !shapes.empty())
            shapes.back().push_back(std::move(line));
        else
            shapes.push_back({std::move(line)});
    }
    if (reader.hasFailed() || found != features)
        return tl::unexpected("says " + std::to_string(features) + " features and has "
                              + std::to_string(found));
    return shapes;
}

} // namespace quorvin
