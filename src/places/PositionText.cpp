// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/PositionText.h"

#include <cmath>
#include <cstdlib>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr double kPole = 90;

/// The text without a sign that nothing but zeros follows.
QString fixedDegrees(double degrees, int decimals)
{
    const QString text = QString::number(degrees, 'f', decimals);
    const bool isZero = text.startsWith("-0"_L1) && text.toDouble() == 0;
    return isZero ? text.sliced(1) : text;
}

/// Rounded once, to tenths of a second, so that no part ever comes to sixty.
QString sexagesimal(double degrees, QChar positive, QChar negative)
{
    constexpr long long kTenths = 10;
    constexpr long long kSixty = 60;
    const long long all = std::llround(std::abs(degrees) * kSixty * kSixty * kTenths);
    const long long seconds = all / kTenths;
    return u"%1°%2'%3.%4\"%5"_s.arg(seconds / (kSixty * kSixty))
        .arg(seconds / kSixty % kSixty, 2, 10, QChar(u'0'))
        .arg(seconds % kSixty, 2, 10, QChar(u'0'))
        .arg(all % kTenths)
        .arg(degrees < 0 && all > 0 ? negative : positive);
}

/// A pole has no longitude, and by RFC 5870 is written with that of 0.
QString geoUri(const Location &location)
{
    const bool isPole = std::abs(location.latitude) == kPole;
    return "geo:"_L1 + degreesText(location.latitude) + u',' + degreesText(isPole ? 0.0 : location.longitude);
}

} // namespace

QString positionText(const Location &location, PositionNotation notation)
{
    constexpr int kDecimals = 5;
    switch (notation) {
    case PositionNotation::Decimal:
        return fixedDegrees(location.latitude, kDecimals) + ", "_L1
            + fixedDegrees(location.longitude, kDecimals);
    case PositionNotation::Sexagesimal:
        return sexagesimal(location.latitude, u'N', u'S') + u' '
            + sexagesimal(location.longitude, u'E', u'W');
    case PositionNotation::GeoUri:
        break;
    }
    return geoUri(location);
}

QString degreesText(double degrees)
{
    constexpr int kDecimals = 7;
    QString text = fixedDegrees(degrees, kDecimals);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

} // namespace quorvin
