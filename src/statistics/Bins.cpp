// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/Bins.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace quorvin {

namespace {

constexpr double kRangeOfLogarithm = 1000;
constexpr std::array kNiceSteps{1.0, 2.0, 5.0};
constexpr int kMonths = 12;
constexpr std::chrono::year kFirstYear{1};
constexpr std::chrono::year kLastYear{9999};

/// The n-th of 1, 2, 5, 10, 20, …; below 1 for a negative number.
double niceStep(int number)
{
    const int ten = number >= 0 ? number / 3 : -((2 - number) / 3);
    const double step = kNiceSteps[static_cast<std::size_t>(number - 3 * ten)];
    // Tens below 1 have no exact number, so that a division comes nearer than a product.
    return ten >= 0 ? step * std::pow(10, ten) : step / std::pow(10, -ten);
}

/// The number of the narrowest step that is not below the width.
int niceStepFor(double width)
{
    int number = 3 * static_cast<int>(std::floor(std::log10(width)));
    while (niceStep(number) < width)
        ++number;
    return number;
}

double binsBy(double step, const Figures &figures)
{
    return std::floor(figures.greatest / step) - std::floor(figures.least / step) + 1;
}

/// By Freedman and Diaconis, or by Sturges where half of the values are one.
double widthFor(const Figures &figures)
{
    const auto streams = static_cast<double>(figures.streams);
    const double range = figures.greatest - figures.least;
    const double spread = figures.upperQuartile - figures.lowerQuartile;
    const double width = spread > 0 ? 2 * spread / std::cbrt(streams) : range / (std::log2(streams) + 1);
    return std::clamp(width, range / kMostBins, range / kFewestBins);
}

Bins evenBins(const Figures &figures)
{
    if (figures.least == figures.greatest) {
        const double above = std::nextafter(figures.greatest, HUGE_VAL);
        return {{figures.least, figures.isWhole ? std::max(figures.greatest + 1, above) : above}};
    }
    int number = niceStepFor(widthFor(figures));
    while (binsBy(niceStep(number), figures) > kMostBins)
        ++number;
    while (binsBy(niceStep(number), figures) < kFewestBins)
        --number;
    if (figures.isWhole)
        number = std::max(number, 0);
    const double step = niceStep(number);
    const double first = std::floor(figures.least / step);
    Bins bins;
    const auto count = static_cast<int>(binsBy(step, figures));
    for (int place = 0; place <= count; ++place)
        bins.edges.push_back((first + place) * step);
    return bins;
}

/// Where there is no room for thirds of decades, by whole ones, or several.
Bins logarithmicBins(const Figures &figures)
{
    Bins bins{{}, true};
    int number = niceStepFor(figures.least);
    if (niceStep(number) > figures.least)
        --number;
    const int thirds = niceStepFor(figures.greatest) - number;
    const int by = thirds > kMostBins ? 3 * (thirds / (3 * kMostBins) + 1) : 1;
    number -= ((number % by) + by) % by;
    for (; bins.edges.empty() || bins.edges.back() <= figures.greatest; number += by)
        bins.edges.push_back(niceStep(number));
    return bins;
}

std::chrono::sys_seconds timeOf(double seconds)
{
    using namespace std::chrono;
    const auto first = sys_days(kFirstYear / January / 1).time_since_epoch();
    const auto last = sys_days(kLastYear / December / 31).time_since_epoch();
    const double bounded
        = std::clamp(seconds, static_cast<double>(duration_cast<std::chrono::seconds>(first).count()),
                     static_cast<double>(duration_cast<std::chrono::seconds>(last).count()));
    return sys_seconds(std::chrono::seconds(static_cast<qint64>(std::floor(bounded))));
}

} // namespace

Bins binsOf(const Figures &figures)
{
    const bool isWide = figures.least > 0 && figures.greatest / figures.least >= kRangeOfLogarithm;
    return isWide ? logarithmicBins(figures) : evenBins(figures);
}

bool isAlongTime(DateStep step)
{
    return step != DateStep::MonthOfYear && step != DateStep::HourOfDay;
}

qint64 stepOf(double seconds, DateStep step)
{
    using namespace std::chrono;
    const sys_seconds time = timeOf(seconds);
    const auto day = floor<days>(time);
    const year_month_day date(day);
    const auto month = static_cast<qint64>(static_cast<unsigned>(date.month())) - 1;
    switch (step) {
    case DateStep::Year:
        return static_cast<int>(date.year());
    case DateStep::Month:
        return qint64{static_cast<int>(date.year())} * kMonths + month;
    case DateStep::Day:
        return day.time_since_epoch().count();
    case DateStep::Hour:
        return floor<hours>(time).time_since_epoch().count();
    case DateStep::MonthOfYear:
        return month;
    case DateStep::HourOfDay:
        return floor<hours>(time - day).count();
    }
    return 0;
}

double beginOfStep(qint64 number, DateStep step)
{
    using namespace std::chrono;
    const auto secondsOf = [](int ofYear, unsigned ofMonth) {
        const sys_seconds time = sys_days(year(ofYear) / month(ofMonth) / 1);
        return static_cast<double>(time.time_since_epoch().count());
    };
    switch (step) {
    case DateStep::Year:
        return secondsOf(static_cast<int>(number), 1);
    case DateStep::Month:
        return secondsOf(static_cast<int>(number / kMonths), static_cast<unsigned>(number % kMonths) + 1);
    case DateStep::Day:
        return static_cast<double>(seconds(days(number)).count());
    case DateStep::Hour:
        return static_cast<double>(seconds(hours(number)).count());
    default:
        return 0;
    }
}

DateStep boundedStep(DateStep step, double least, double greatest)
{
    while (isAlongTime(step) && step != DateStep::Year
           && stepOf(greatest, step) - stepOf(least, step) >= kMostSteps)
        step = static_cast<DateStep>(static_cast<quint8>(step) - 1);
    return step;
}

DateStep finestStep(double least, double greatest)
{
    DateStep step = DateStep::Hour;
    while (step != DateStep::Year && stepOf(greatest, step) - stepOf(least, step) >= kMostBins)
        step = static_cast<DateStep>(static_cast<quint8>(step) - 1);
    return step;
}

} // namespace quorvin
