// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Quantity.h"

#include "model/QuantityScanner.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;
using enum QuantityKind;

constexpr qsizetype kLongest = 64; ///< letters; no quantity is longer

constexpr double kMinute = 60;
constexpr double kHour = 60 * kMinute;
constexpr double kDay = 24 * kHour;

constexpr std::array kMonths{"jan"_L1, "feb"_L1, "mar"_L1, "apr"_L1, "may"_L1, "jun"_L1,
                             "jul"_L1, "aug"_L1, "sep"_L1, "oct"_L1, "nov"_L1, "dec"_L1};

/// 05:06, 05:06:07 or 05:06:07.25, in seconds.
std::optional<double> clockTime(QuantityScanner &scanner, bool needsSeconds)
{
    const auto hours = scanner.digits(1, 3);
    if (!hours || !scanner.take(u':'))
        return std::nullopt;
    const auto minutes = scanner.digits(2, 2);
    const bool hasSeconds = scanner.take(u':');
    const auto seconds = hasSeconds ? scanner.number() : std::optional(0.0);
    if (!minutes || !seconds || (needsSeconds && !hasSeconds) || *minutes >= 60 || *seconds >= 61)
        return std::nullopt;
    return *hours * kHour + *minutes * kMinute + *seconds;
}

/// What the zone adds to universal time, in seconds; 0 without one.
std::optional<double> zoneOffset(QuantityScanner &scanner)
{
    scanner.skipBlanks();
    if (scanner.isAtEnd() || scanner.take(u'Z'))
        return 0;
    const bool isBehind = scanner.take(u'-');
    if (!isBehind && !scanner.take(u'+'))
        return scanner.word() == "UTC"_L1 ? std::optional(0.0) : std::nullopt;
    const auto hours = scanner.digits(2, 2);
    scanner.take(u':');
    const auto minutes = scanner.digits(2, 2);
    if (!hours || !minutes)
        return std::nullopt;
    return (isBehind ? -1 : 1) * (*hours * kHour + *minutes * kMinute);
}

std::optional<double> secondsOf(double year, double month, double day)
{
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(year)),
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok())
        return std::nullopt;
    return static_cast<double>(std::chrono::sys_days(date).time_since_epoch().count()) * kDay;
}

/// 2014:11:19 18:08:04, 2014-11-19T18:08:04+01:00, and less of it down to 2014-11.
std::optional<double> numericDate(QuantityScanner scanner)
{
    const auto year = scanner.digits(4, 4);
    if (!year || !scanner.takeOneOf(u"-:"))
        return std::nullopt;
    const auto month = scanner.digits(2, 2);
    if (!month)
        return std::nullopt;
    const auto day = scanner.takeOneOf(u"-:") ? scanner.digits(2, 2) : std::optional(1.0);
    const auto date = day ? secondsOf(*year, *month, *day) : std::nullopt;
    if (!date || scanner.isAtEnd())
        return date;
    if (!scanner.takeOneOf(u"T "))
        return std::nullopt;
    const auto time = clockTime(scanner, false);
    const auto zone = zoneOffset(scanner);
    return time && zone && scanner.isAtEnd() ? std::optional(*date + *time - *zone) : std::nullopt;
}

/// November 21, 2026 at 3:03:50 AM, with or without its time.
std::optional<double> writtenDate(QuantityScanner scanner)
{
    const QStringView name = scanner.word();
    const auto *const month = std::ranges::find_if(
        kMonths, [&](QLatin1String start) { return name.startsWith(start, Qt::CaseInsensitive); });
    scanner.skipBlanks();
    const auto day = scanner.digits(1, 2);
    scanner.take(u',');
    scanner.skipBlanks();
    const auto year = scanner.digits(4, 4);
    if (month == kMonths.end() || !day || !year)
        return std::nullopt;
    const auto date = secondsOf(*year, static_cast<double>(month - kMonths.begin()) + 1, *day);
    scanner.take(u',');
    scanner.skipBlanks();
    if (!date || scanner.isAtEnd())
        return date;
    scanner.word();
    scanner.skipBlanks();
    const auto time = clockTime(scanner, true);
    scanner.skipBlanks();
    const QStringView half = scanner.word();
    if (!time || !scanner.isAtEnd())
        return std::nullopt;
    const double halfDay = kDay / 2;
    if (half.compare("PM"_L1, Qt::CaseInsensitive) == 0)
        return *date + std::fmod(*time, halfDay) + halfDay;
    return *date + (half.isEmpty() ? *time : std::fmod(*time, halfDay));
}

/// 51deg 1' 30" N
std::optional<double> position(QuantityScanner scanner)
{
    const bool isNegative = scanner.take(u'-');
    double degrees = 0;
    for (const double part : {1.0, 60.0, 3600.0}) {
        const auto number = scanner.number();
        if (!number && part == 1.0)
            return std::nullopt;
        if (!number)
            break;
        degrees += *number / part;
        const bool hasSign = part == 1.0 ? scanner.take(u'\u00b0') || scanner.word() == "deg"_L1
                                         : scanner.takeOneOf(part == 60.0 ? u"'\u2032" : u"\"\u2033");
        if (!hasSign)
            return std::nullopt;
        scanner.skipBlanks();
    }
    const bool isSouthOrWest = scanner.takeOneOf(u"SW");
    if (!isSouthOrWest)
        scanner.takeOneOf(u"NE");
    return scanner.isAtEnd() ? std::optional(isNegative || isSouthOrWest ? -degrees : degrees) : std::nullopt;
}

/// 1920x1080, 1 920 x 1 080 pixels
std::optional<double> pixelsOfBothSides(QuantityScanner scanner)
{
    const auto width = scanner.number();
    scanner.skipBlanks();
    if (!width || !scanner.takeOneOf(u"xX\u00d7"))
        return std::nullopt;
    scanner.skipBlanks();
    const auto height = scanner.number();
    const QuantityUnit *const unit = scanner.unit();
    const bool isSide = unit && (unit->base.isEmpty() || unit->base == "px"_L1) && scanner.isAtEnd();
    return height && isSide && *width > 0 && *height > 0 ? std::optional(*width * *height) : std::nullopt;
}

/// A number or a fraction, with a unit or without, and what follows it in smaller units: 2 h 3 min.
std::optional<Quantity> measured(QuantityScanner scanner)
{
    const bool isNegative = scanner.takeOneOf(u"-\u2212");
    if (!isNegative)
        scanner.take(u'+');
    const auto number = scanner.number();
    if (!number)
        return std::nullopt;
    const bool isFraction = scanner.take(u'/');
    const auto divisor = isFraction ? scanner.number() : std::optional(1.0);
    const QuantityUnit *const unit = scanner.unit();
    if (!divisor || *divisor == 0 || !unit)
        return std::nullopt;
    double value = *number / *divisor * unit->factor;
    while (unit->kind == Duration && !scanner.isAtEnd()) {
        const auto more = scanner.number();
        const QuantityUnit *const smaller = scanner.unit();
        if (!more || !smaller || smaller->kind != Duration)
            return std::nullopt;
        value += *more * smaller->factor;
    }
    if (!scanner.isAtEnd())
        return std::nullopt;
    const bool isExposure = isFraction && (unit->kind == Duration || unit->base.isEmpty());
    return Quantity{isExposure ? Fraction : unit->kind, isNegative ? -value : value, unit->base};
}

std::optional<double> fNumber(QuantityScanner scanner)
{
    if (!scanner.takeOneOf(u"fF"))
        return std::nullopt;
    scanner.take(u'/');
    const auto number = scanner.number();
    return scanner.isAtEnd() ? number : std::nullopt;
}

std::optional<double> duration(QuantityScanner scanner)
{
    const auto time = clockTime(scanner, true);
    return scanner.isAtEnd() ? time : std::nullopt;
}

Quantity quantityWithoutRemark(QStringView text)
{
    const QuantityScanner scanner(text);
    const auto date = numericDate(scanner);
    if (const auto written = date ? date : writtenDate(scanner))
        return {Date, *written, {}};
    if (const auto area = pixelsOfBothSides(scanner))
        return {Pixels, *area, "px\xb2"_L1};
    if (const auto time = duration(scanner))
        return {Duration, *time, "s"_L1};
    if (const auto aperture = fNumber(scanner))
        return {FNumber, *aperture, {}};
    if (const auto quantity = measured(scanner))
        return *quantity;
    if (const auto degrees = position(scanner))
        return {Position, *degrees, "\xb0"_L1};
    return {};
}

bool isPlain(const Quantity &quantity)
{
    return quantity.unit.isEmpty() && (quantity.kind == Number || quantity.kind == Fraction);
}

} // namespace

Quantity quantityOf(QStringView text)
{
    text = text.trimmed();
    if (text.isEmpty() || text.size() > kLongest)
        return {};
    const qsizetype open = text.indexOf(" ("_L1);
    const qsizetype close = text.indexOf(u')', open + 1);
    if (open < 0 || close < 0)
        return quantityWithoutRemark(text);
    // The remark of a size has the bytes themselves, and that of a rate stands before its unit.
    const Quantity exact = quantityWithoutRemark(text.sliced(open + 2, close - open - 2));
    const QString rest = text.first(open).toString() + text.sliced(close + 1).toString();
    const Quantity rounded = quantityWithoutRemark(rest);
    return exact.kind == Size && rounded.kind == Size ? exact : rounded;
}

std::optional<int> compareQuantities(const Quantity &left, const Quantity &right)
{
    const auto isAlone = [](QuantityKind kind) { return kind == Text || kind == Date; };
    const bool isOneKind = left.kind == right.kind || (!isAlone(left.kind) && !isAlone(right.kind));
    const bool isOneUnit = left.unit == right.unit || isPlain(left) || isPlain(right);
    if (left.kind == Text || !isOneKind || !isOneUnit)
        return std::nullopt;
    return (left.value > right.value) - (left.value < right.value);
}

} // namespace quorvin
