// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/BaseMapBytes.h"

namespace quorvin {

namespace {

constexpr unsigned kBitsOfByte = 7;
constexpr unsigned kMoreFollows = 1U << kBitsOfByte;

void appendNumber(std::string &bytes, std::uint32_t number)
{
    for (; number >= kMoreFollows; number >>= kBitsOfByte)
        bytes.push_back(static_cast<char>((number & (kMoreFollows - 1)) | kMoreFollows));
    bytes.push_back(static_cast<char>(number));
}

/// Small ones of either sign become small numbers.
void appendStep(std::string &bytes, int from, int to)
{
    const int step = to - from;
    appendNumber(bytes,
                 step < 0 ? static_cast<std::uint32_t>(-step) * 2 - 1 : static_cast<std::uint32_t>(step) * 2);
}

/// Takes numbers from the front; what ends too early gives zeros and is no longer whole.
class NumberReader {
public:
    explicit NumberReader(std::string_view bytes) : _bytes(bytes) { }

    bool isWhole() const { return _isWhole; }
    std::size_t bytesLeft() const { return _bytes.size(); }

    std::uint32_t number()
    {
        std::uint32_t number = 0;
        for (unsigned shift = 0; shift < 32 && !_bytes.empty(); shift += kBitsOfByte) {
            const auto byte = static_cast<unsigned char>(_bytes.front());
            _bytes.remove_prefix(1);
            number |= (byte & (kMoreFollows - 1)) << shift;
            if (byte < kMoreFollows)
                return number;
        }
        _isWhole = false;
        return 0;
    }

    std::int16_t stepped(std::int16_t from)
    {
        const std::uint32_t number = this->number();
        const std::uint32_t size = (number + 1) / 2;
        return static_cast<std::int16_t>(static_cast<std::uint16_t>(from)
                                         + (number % 2 == 1 ? 0 - size : size));
    }

    /// Of things that take a byte at the least.
    std::uint32_t count()
    {
        const std::uint32_t count = number();
        _isWhole = _isWhole && count <= _bytes.size();
        return _isWhole ? count : 0;
    }

private:
    std::string_view _bytes;
    bool _isWhole = true;
};

ArcLine readLine(NumberReader &reader)
{
    ArcLine line(reader.count());
    ArcPoint last;
    for (ArcPoint &point : line) {
        point = {reader.stepped(last.latitude), reader.stepped(last.longitude)};
        last = point;
    }
    return line;
}

void appendLine(std::string &bytes, const ArcLine &line)
{
    appendNumber(bytes, static_cast<std::uint32_t>(line.size()));
    ArcPoint last;
    for (const ArcPoint &point : line) {
        appendStep(bytes, last.latitude, point.latitude);
        appendStep(bytes, last.longitude, point.longitude);
        last = point;
    }
}

} // namespace

std::string baseMapBytes(const ArcLayers &layers)
{
    std::string bytes;
    for (const std::vector<ArcShape> &shapes : layers) {
        appendNumber(bytes, static_cast<std::uint32_t>(shapes.size()));
        for (const ArcShape &shape : shapes) {
            appendNumber(bytes, static_cast<std::uint32_t>(shape.size()));
            for (const ArcLine &line : shape)
                appendLine(bytes, line);
        }
    }
    return bytes;
}

std::optional<ArcLayers> baseMapFromBytes(std::string_view bytes)
{
    NumberReader reader(bytes);
    ArcLayers layers;
    for (std::vector<ArcShape> &shapes : layers) {
        shapes.resize(reader.count());
        for (ArcShape &shape : shapes) {
            shape.resize(reader.count());
            for (ArcLine &line : shape)
                line = readLine(reader);
        }
    }
    if (!reader.isWhole() || reader.bytesLeft() > 0)
        return {};
    return layers;
}

} // namespace quorvin
