// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/Figures.h"

#include "statistics/Bins.h"
#include "statistics/MeasureText.h"
#include "support/CountedFiles.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

using test::counted;
using test::filesOfValues;

namespace {

using namespace Qt::StringLiterals;

std::optional<Figures> figuresOfValues(const QStringList &values)
{
    return figuresOf(*counted(u"Video/rate"_s, filesOfValues(values)));
}

Figures spread(double least, double greatest, double lower, double upper, qint64 streams,
               bool isWhole = false)
{
    return {.measure = {},
            .least = least,
            .greatest = greatest,
            .lowerQuartile = lower,
            .upperQuartile = upper,
            .isWhole = isWhole,
            .streams = streams};
}

void expectBinsOf(const Figures &figures, std::vector<double> edges)
{
    const Bins bins = binsOf(figures);
    ASSERT_EQ(bins.edges.size(), edges.size()) << testing::PrintToString(bins.edges);
    for (std::size_t i = 0; i < edges.size(); ++i)
        EXPECT_DOUBLE_EQ(bins.edges[i], edges[i]);
}

} // namespace

TEST(Figures, AreThoseOfTheStreamsByHand)
{
    const auto figures = figuresOfValues(
        {u"4 Mb/s"_s, u"1 Mb/s"_s, u"2 000 kb/s"_s, u"10 Mb/s"_s, u"3 Mb/s"_s, u"1 Mb/s"_s, u"none"_s});
    ASSERT_TRUE(figures);
    EXPECT_EQ(figures->measure, (Measure{QuantityKind::Rate, "b/s"_L1}));
    EXPECT_DOUBLE_EQ(figures->least, 1e6);
    EXPECT_DOUBLE_EQ(figures->lowerQuartile, 1.25e6);
    EXPECT_DOUBLE_EQ(figures->median, 2.5e6);
    EXPECT_DOUBLE_EQ(figures->upperQuartile, 3.75e6);
    EXPECT_DOUBLE_EQ(figures->greatest, 1e7);
    EXPECT_DOUBLE_EQ(figures->mean, 3.5e6);
    EXPECT_EQ(figures->streams, 6);
    EXPECT_EQ(figures->incomparable.size(), 1);

    const auto one = figuresOfValues({u"F5.6"_s});
    EXPECT_TRUE(one && one->least == 5.6 && one->median == 5.6 && one->upperQuartile == 5.6);
    EXPECT_FALSE(figuresOfValues({u"AVC"_s, u"5"_s}));
    EXPECT_FALSE(figuresOfValues({}));
    // An exposure is a time, whether it is written as a fraction or not; a size is none.
    const auto exposures = figuresOfValues({u"1/500 s"_s, u"2 s"_s, u"1/4 s"_s, u"3 MB"_s});
    EXPECT_TRUE(exposures && exposures->greatest == 2 && exposures->incomparable.size() == 1);
}

TEST(Bins, HaveNiceEdgesAndHoldAllValues)
{
    expectBinsOf(spread(3, 47, 10, 30, 8, true), {0, 10, 20, 30, 40, 50});
    expectBinsOf(spread(8, 12, 8, 12, 4, true), {8, 9, 10, 11, 12, 13});
    expectBinsOf(spread(0.11, 0.93, 0.3, 0.6, 10), {0, 0.2, 0.4, 0.6, 0.8, 1});
    expectBinsOf(spread(7, 7, 7, 7, 9, true), {7, 8});
    expectBinsOf(spread(3, 4000, 5, 3000, 9), {2, 5, 10, 20, 50, 100, 200, 500, 1000, 2000, 5000});
    EXPECT_TRUE(binsOf(spread(3, 4000, 5, 3000, 9)).isLogarithmic);
}

TEST(Bins, AreNeitherTooFewNorTooMany)
{
    for (const auto &figures : {spread(0, 1e9, 5e8, 5.001e8, 1'000'000), spread(-1e12, 3, -2, 2, 3),
                                spread(1e15, 1e15 + 4, 1e15, 1e15 + 2, 50), spread(-0.001, 0.0017, 0, 0, 77),
                                spread(1e-60, 1e60, 1, 2, 5), spread(0, 1e64, 0, 1e64, 2)}) {
        const Bins bins = binsOf(figures);
        EXPECT_GE(bins.edges.size(), 1U + kFewestBins);
        EXPECT_LE(bins.edges.size(), 1U + kMostBins);
        EXPECT_LE(bins.edges.front(), figures.least);
        EXPECT_GT(bins.edges.back(), figures.greatest);
        EXPECT_TRUE(std::ranges::is_sorted(bins.edges));
    }
}

TEST(DateSteps, BeginWhereTheirDatesDo)
{
    constexpr double kLeapDay = 1582934400; // 2020-02-29
    EXPECT_EQ(stepText(stepOf(kLeapDay + 86399, DateStep::Day), DateStep::Day), u"2020-02-29"_s);
    EXPECT_EQ(stepText(stepOf(kLeapDay + 3600 * 13, DateStep::Hour), DateStep::Hour), u"2020-02-29 13 h"_s);
    EXPECT_EQ(stepText(stepOf(kLeapDay + 86400, DateStep::Month), DateStep::Month), u"2020-03"_s);
    EXPECT_EQ(stepText(stepOf(-1, DateStep::Day), DateStep::Day), u"1969-12-31"_s);
    EXPECT_EQ(stepOf(-1, DateStep::HourOfDay), 23);
    EXPECT_EQ(stepText(stepOf(-1, DateStep::MonthOfYear), DateStep::MonthOfYear), u"December"_s);
    for (const DateStep step : {DateStep::Year, DateStep::Month, DateStep::Day, DateStep::Hour}) {
        const qint64 number = stepOf(kLeapDay, step);
        EXPECT_LE(beginOfStep(number, step), kLeapDay);
        EXPECT_EQ(stepOf(beginOfStep(number, step), step), number);
        EXPECT_EQ(stepOf(beginOfStep(number, step) - 1, step), number - 1);
    }
}

TEST(DateSteps, AreAsFineAsFits)
{
    constexpr double kDay = 86400;
    EXPECT_EQ(finestStep(0, 3 * kDay), DateStep::Hour);
    EXPECT_EQ(finestStep(0, 60 * kDay), DateStep::Day);
    EXPECT_EQ(finestStep(0, 3000 * kDay), DateStep::Month);
    EXPECT_EQ(finestStep(0, 30000 * kDay), DateStep::Year);
    EXPECT_EQ(boundedStep(DateStep::Hour, 0, 30 * kDay), DateStep::Hour);
    EXPECT_EQ(boundedStep(DateStep::Hour, 0, 3000 * kDay), DateStep::Day);
    EXPECT_EQ(boundedStep(DateStep::HourOfDay, 0, 30000 * kDay), DateStep::HourOfDay);
    EXPECT_GT(stepOf(1e30, DateStep::Year), stepOf(0, DateStep::Year));
}

TEST(MeasureText, IsReadAsItWasMeant)
{
    const Measure rate{QuantityKind::Rate, "b/s"_L1};
    EXPECT_EQ(measuredText(1'411'200, rate), u"1.411 Mb/s"_s);
    EXPECT_EQ(rangeText(0, 2'000'000, rate), u"0 – 2 Mb/s"_s);
    EXPECT_EQ(rangeText(500, 2'000'000, rate), u"500 b/s – 2 Mb/s"_s);
    EXPECT_EQ(measuredText(7384, {QuantityKind::Duration, "s"_L1}), u"2 h 3 min"_s);
    EXPECT_EQ(measuredText(119.8, {QuantityKind::Duration, "s"_L1}), u"2 min"_s);
    EXPECT_EQ(measuredText(0.0404, {QuantityKind::Duration, "s"_L1}), u"40.4 ms"_s);
    EXPECT_EQ(measuredText(0.004, {QuantityKind::Fraction, "s"_L1}), u"1/250 s"_s);
    EXPECT_EQ(measuredText(2.5, {QuantityKind::Fraction, "s"_L1}), u"2.5 s"_s);
    EXPECT_EQ(measuredText(5.6, {QuantityKind::FNumber, {}}), u"F5.6"_s);
    EXPECT_EQ(measuredText(2'073'600, {QuantityKind::Pixels, "px\xb2"_L1}), u"2.074 MP"_s);
    EXPECT_EQ(measuredText(-0.5, {QuantityKind::Date, {}}), u"1969-12-31 23:59:59"_s);
    EXPECT_EQ(measuredText(12800, {}), u"12800"_s);
}

} // namespace quorvin
