// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/MeasureText.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

struct Scale {
    QLatin1String base;
    double factor;
    QLatin1String unit;
};
/// From the largest down within a base.
constexpr std::array kScales{
    Scale{"B"_L1, 1e12, "TB"_L1},     Scale{"B"_L1, 1e9, "GB"_L1},     Scale{"B"_L1, 1e6, "MB"_L1},
    Scale{"B"_L1, 1e3, "KB"_L1},      Scale{"b/s"_L1, 1e9, "Gb/s"_L1}, Scale{"b/s"_L1, 1e6, "Mb/s"_L1},
    Scale{"b/s"_L1, 1e3, "kb/s"_L1},  Scale{"Hz"_L1, 1e6, "MHz"_L1},   Scale{"Hz"_L1, 1e3, "kHz"_L1},
    Scale{"px\xb2"_L1, 1e6, "MP"_L1},
};

constexpr double kMinute = 60;
constexpr double kHour = 60 * kMinute;
constexpr double kLongestFraction = 0.3; ///< s; longer exposures are told in decimals

Scale scaleFor(double value, QLatin1String unit)
{
    const auto *const scale = std::ranges::find_if(
        kScales, [&](const Scale &one) { return one.base == unit && std::abs(value) >= one.factor; });
    return scale == kScales.end() ? Scale{unit, 1, unit} : *scale;
}

/// To four digits or so, without zeros behind.
QString numberText(double value)
{
    constexpr int kMostDecimals = 9;
    const double size = std::abs(value);
    const int digits = size > 0 ? static_cast<int>(std::floor(std::log10(size))) : 0;
    QString text = QString::number(value, 'f', std::clamp(3 - digits, 0, kMostDecimals));
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text == "-0"_L1 ? u"0"_s : text;
}

QString withUnit(const QString &number, QLatin1String unit)
{
    return unit.isEmpty() ? number : number + u' ' + unit;
}

QString durationText(double seconds)
{
    const double size = std::abs(seconds);
    if (size > 0 && size < 1)
        return numberText(seconds * 1e3) + " ms"_L1;
    if (size < kMinute)
        return numberText(seconds) + " s"_L1;
    const bool isLong = size >= kHour;
    const double small = isLong ? kMinute : 1;
    const double large = isLong ? kHour : kMinute;
    const double count = std::round(size / small);
    const double perLarge = large / small;
    QString text = numberText(std::floor(count / perLarge)) + (isLong ? " h"_L1 : " min"_L1);
    if (const double rest = std::fmod(count, perLarge); rest > 0)
        text += u' ' + numberText(rest) + (isLong ? " min"_L1 : " s"_L1);
    return seconds < 0 ? u'-' + text : text;
}

QString fractionText(double value, QLatin1String unit)
{
    const bool isFraction = value > 0 && value <= kLongestFraction;
    return withUnit(isFraction ? "1/"_L1 + numberText(std::round(1 / value)) : numberText(value), unit);
}

QString padded(qint64 number, int width = 2)
{
    return QString::number(number).rightJustified(width, u'0');
}

QString dateText(double seconds)
{
    const qint64 days = stepOf(seconds, DateStep::Day);
    const qint64 rest = static_cast<qint64>(std::floor(seconds)) - days * 24 * 3600;
    return stepText(days, DateStep::Day) + u' ' + padded(rest / 3600) + u':' + padded(rest / 60 % 60) + u':'
        + padded(rest % 60);
}

bool hasScales(QLatin1String unit)
{
    return std::ranges::any_of(kScales, [&](const Scale &scale) { return scale.base == unit; });
}

} // namespace

QString measuredText(double value, const Measure &measure)
{
    switch (measure.kind) {
    case QuantityKind::Date:
        return dateText(value);
    case QuantityKind::Duration:
        return durationText(value);
    case QuantityKind::Fraction:
        return fractionText(value, measure.unit);
    case QuantityKind::FNumber:
        return u'F' + numberText(value);
    default: {
        const Scale scale = scaleFor(value, measure.unit);
        return withUnit(numberText(value / scale.factor), scale.unit);
    }
    }
}

QString rangeText(double from, double to, const Measure &measure)
{
    const bool isByScale = measure.kind == QuantityKind::Number || hasScales(measure.unit);
    if (!isByScale)
        return measuredText(from, measure) + u" – "_s + measuredText(to, measure);
    const Scale scale = scaleFor(std::max(std::abs(from), std::abs(to)), measure.unit);
    const double least = std::abs(from / scale.factor);
    // A logarithmic range may begin far below the scale of its end.
    if (least > 0 && least < 1e-3)
        return measuredText(from, measure) + u" – "_s + measuredText(to, measure);
    return withUnit(numberText(from / scale.factor) + u" – "_s + numberText(to / scale.factor), scale.unit);
}

QString stepText(qint64 number, DateStep step)
{
    using namespace std::chrono;
    switch (step) {
    case DateStep::MonthOfYear:
        return QLocale::c().standaloneMonthName(static_cast<int>(number) + 1);
    case DateStep::HourOfDay:
        return QString::number(number) + " h"_L1;
    case DateStep::Year:
        return padded(number, 4);
    case DateStep::Month:
        return padded(number / 12, 4) + u'-' + padded(number % 12 + 1);
    case DateStep::Hour: {
        const qint64 day = floor<days>(hours(number)).count();
        return stepText(day, DateStep::Day) + u' ' + padded(number - day * 24) + " h"_L1;
    }
    case DateStep::Day:
        break;
    }
    const year_month_day date{sys_days(days(number))};
    return padded(static_cast<int>(date.year()), 4) + u'-' + padded(static_cast<unsigned>(date.month()))
        + u'-' + padded(static_cast<unsigned>(date.day()));
}

} // namespace quorvin
