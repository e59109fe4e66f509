// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/QuantityScanner.h"

#include <array>
#include <cmath>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;
using enum QuantityKind;

constexpr qsizetype kMostDigits = 64;
constexpr double kSecondsOfMinute = 60;
constexpr double kSecondsOfHour = 60 * kSecondsOfMinute;
constexpr double kKibi = 1024;

constexpr std::array kUnits{
    QuantityUnit{""_L1, Number, 1, ""_L1},
    QuantityUnit{"ns"_L1, Duration, 1e-9, "s"_L1},
    QuantityUnit{"us"_L1, Duration, 1e-6, "s"_L1},
    QuantityUnit{"ms"_L1, Duration, 1e-3, "s"_L1},
    QuantityUnit{"s"_L1, Duration, 1, "s"_L1},
    QuantityUnit{"sec"_L1, Duration, 1, "s"_L1},
    QuantityUnit{"min"_L1, Duration, kSecondsOfMinute, "s"_L1},
    QuantityUnit{"mn"_L1, Duration, kSecondsOfMinute, "s"_L1},
    QuantityUnit{"h"_L1, Duration, kSecondsOfHour, "s"_L1},
    QuantityUnit{"byte"_L1, Size, 1, "B"_L1},
    QuantityUnit{"bytes"_L1, Size, 1, "B"_L1},
    QuantityUnit{"B"_L1, Size, 1, "B"_L1},
    QuantityUnit{"KB"_L1, Size, 1e3, "B"_L1},
    QuantityUnit{"MB"_L1, Size, 1e6, "B"_L1},
    QuantityUnit{"GB"_L1, Size, 1e9, "B"_L1},
    QuantityUnit{"TB"_L1, Size, 1e12, "B"_L1},
    QuantityUnit{"PB"_L1, Size, 1e15, "B"_L1},
    QuantityUnit{"KiB"_L1, Size, kKibi, "B"_L1},
    QuantityUnit{"MiB"_L1, Size, kKibi *kKibi, "B"_L1},
    QuantityUnit{"GiB"_L1, Size, kKibi *kKibi *kKibi, "B"_L1},
    QuantityUnit{"TiB"_L1, Size, kKibi *kKibi *kKibi *kKibi, "B"_L1},
    QuantityUnit{"b/s"_L1, Rate, 1, "b/s"_L1},
    QuantityUnit{"kb/s"_L1, Rate, 1e3, "b/s"_L1},
    QuantityUnit{"Mb/s"_L1, Rate, 1e6, "b/s"_L1},
    QuantityUnit{"Gb/s"_L1, Rate, 1e9, "b/s"_L1},
    QuantityUnit{"px"_L1, Pixels, 1, "px"_L1},
    QuantityUnit{"pixel"_L1, Pixels, 1, "px"_L1},
    QuantityUnit{"pixels"_L1, Pixels, 1, "px"_L1},
    QuantityUnit{"MP"_L1, Pixels, 1e6, "px\xb2"_L1},
    QuantityUnit{"Hz"_L1, Number, 1, "Hz"_L1},
    QuantityUnit{"kHz"_L1, Number, 1e3, "Hz"_L1},
    QuantityUnit{"MHz"_L1, Number, 1e6, "Hz"_L1},
    QuantityUnit{"fps"_L1, Number, 1, "fps"_L1},
    QuantityUnit{"bit"_L1, Number, 1, "bits"_L1},
    QuantityUnit{"bits"_L1, Number, 1, "bits"_L1},
    QuantityUnit{"channel"_L1, Number, 1, "channels"_L1},
    QuantityUnit{"channels"_L1, Number, 1, "channels"_L1},
    QuantityUnit{"frame"_L1, Number, 1, "frames"_L1},
    QuantityUnit{"frames"_L1, Number, 1, "frames"_L1},
    QuantityUnit{"mm"_L1, Number, 1, "mm"_L1},
    QuantityUnit{"m"_L1, Number, 1, "m"_L1},
    QuantityUnit{"EV"_L1, Number, 1, "EV"_L1},
    QuantityUnit{"dB"_L1, Number, 1, "dB"_L1},
    QuantityUnit{"LKFS"_L1, Number, 1, "LKFS"_L1},
    QuantityUnit{"LUFS"_L1, Number, 1, "LUFS"_L1},
    QuantityUnit{"dpi"_L1, Number, 1, "dpi"_L1},
    QuantityUnit{"cd/m2"_L1, Number, 1, "cd/m2"_L1},
    QuantityUnit{"%"_L1, Number, 1, "%"_L1},
    QuantityUnit{"x"_L1, Number, 1, "x"_L1},
    QuantityUnit{"\xb0"_L1, Position, 1, "\xb0"_L1},
    QuantityUnit{"deg"_L1, Position, 1, "\xb0"_L1},
};

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

bool QuantityScanner::take(QChar c)
{
    const bool isNext = _rest.startsWith(c);
    _rest = _rest.sliced(isNext ? 1 : 0);
    return isNext;
}

std::optional<double> QuantityScanner::digits(qsizetype least, qsizetype most)
{
    qsizetype count = 0;
    double value = 0;
    for (; count < _rest.size() && isDigit(_rest[count]); ++count)
        value = value * 10 + (_rest[count].unicode() - u'0');
    if (count < least || count > most)
        return std::nullopt;
    _rest = _rest.sliced(count);
    return value;
}

std::optional<double> QuantityScanner::number()
{
    auto value = digits(1, kMostDigits);
    if (!value)
        return value;
    while (hasGroup()) {
        _rest = _rest.sliced(1);
        value = *value * 1000 + *digits(3, 3);
    }
    if (_rest.size() > 1 && _rest[0] == u'.' && isDigit(_rest[1])) {
        const qsizetype before = _rest.size() - 1;
        _rest = _rest.sliced(1);
        const double fraction = *digits(1, kMostDigits);
        *value += fraction / std::pow(10, static_cast<double>(before - _rest.size()));
    }
    return value;
}

QStringView QuantityScanner::word()
{
    qsizetype end = 0;
    while (end < _rest.size() && _rest[end].isLetter())
        ++end;
    const QStringView taken = _rest.first(end);
    _rest = _rest.sliced(end);
    return taken;
}

const QuantityUnit *QuantityScanner::unit()
{
    const QStringView behind = _rest.trimmed();
    const auto end = std::ranges::find_if(behind, [](QChar c) { return c.isSpace(); });
    const QStringView text(behind.begin(), end);
    const auto *const unit = std::ranges::find_if(
        kUnits, [&](const QuantityUnit &one) { return text.compare(one.text, Qt::CaseInsensitive) == 0; });
    if (unit == kUnits.end())
        return nullptr;
    _rest = behind.sliced(text.size()).trimmed();
    return unit;
}

bool QuantityScanner::hasGroup() const
{
    const auto isDigitAt = [this](qsizetype place) { return place < _rest.size() && isDigit(_rest[place]); };
    return !_rest.isEmpty() && _rest[0].isSpace() && isDigitAt(1) && isDigitAt(2) && isDigitAt(3)
        && !isDigitAt(4);
}

} // namespace quorvin
