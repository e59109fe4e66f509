// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/Sizes.h"

#include <array>
#include <charconv>

namespace quorvin::Utilities {

namespace {

struct Unit {
    quint64 least; ///< bytes from which the unit is used; also the divisor
    QLatin1String name;
};

using Units = std::array<Unit, 4>;

constexpr Units kDecimalUnits{{{1'000'000'000'000, QLatin1String("TB")},
                               {1'000'000'000, QLatin1String("GB")},
                               {1'000'000, QLatin1String("MB")},
                               {1'000, QLatin1String("KB")}}};
constexpr Units kBinaryUnits{{{quint64{1} << 40, QLatin1String("TiB")},
                              {quint64{1} << 30, QLatin1String("GiB")},
                              {quint64{1} << 20, QLatin1String("MiB")},
                              {quint64{1} << 10, QLatin1String("KiB")}}};

QString threeDigits(double value)
{
    return fixedNotation(value, value >= 100 ? 0 : value >= 10 ? 1 : 2);
}

QString humanString(qint64 bytes, const Units &units)
{
    for (const Unit &unit : units) {
        // Compared as an unsigned number, so that a negative one takes the first unit.
        if (static_cast<quint64>(bytes) >= unit.least)
            return threeDigits(static_cast<double>(bytes) / static_cast<double>(unit.least)) + u' '
                + unit.name;
    }
    return QString::number(bytes) + QLatin1String(" bytes");
}

} // namespace

QString filesizeToMacHumanString(qint64 bytes)
{
    return humanString(bytes, kDecimalUnits);
}

QString filesizeToBase2HumanString(qint64 bytes)
{
    return humanString(bytes, kBinaryUnits);
}

QString fixedNotation(double value, int decimals)
{
    std::array<char, 400> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed, decimals);
    return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

} // namespace quorvin::Utilities
