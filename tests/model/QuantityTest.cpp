// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Quantity.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

namespace quorvin {

namespace {

using enum QuantityKind;

Quantity quantity(const char *text)
{
    return quantityOf(QString::fromUtf8(text));
}

} // namespace

TEST(Quantity, ReadsWhatIsShown)
{
    struct Case {
        const char *text;
        QuantityKind kind;
        double value;
        const char *unit;
    };
    for (const Case &one : {
             Case{"1 509 kb/s", Rate, 1'509'000, "b/s"},
             {"36.7 KB", Size, 36'700, "B"},
             {"1.50 MiB", Size, 1'572'864, "B"},
             {"88.3 KB (88278 bytes)", Size, 88'278, "B"},
             {"88.2 KB (99.9%)", Size, 88'200, "B"},
             {"F5.6", FNumber, 5.6, ""},
             {"f/11", FNumber, 11, ""},
             {"2 h 3 min", Duration, 7380, "s"},
             {"1 min 34 s 132 ms", Duration, 94.132, "s"},
             {"-23 ms", Duration, -0.023, "s"},
             {"00:01:30.5", Duration, 90.5, "s"},
             {"1920x1080", Pixels, 2'073'600, "px\xc2\xb2"},
             {"6 000 x 4 000", Pixels, 24'000'000, "px\xc2\xb2"},
             {"1 920 pixels", Pixels, 1920, "px"},
             {"1/500 s", Fraction, 0.002, "s"},
             {"+7/10 EV", Number, 0.7, "EV"},
             {"48.0 kHz", Number, 48'000, "Hz"},
             {"29.970 (30000/1001) FPS", Number, 29.97, "fps"},
             {"1 (0x1)", Number, 1, ""},
             {"2014:11:19 18:08:04", Date, 1'416'420'484, ""},
             {"2010-04-13T09:37:22+02:00", Date, 1'271'144'242, ""},
             {"2004-10-28 17:23:34 UTC", Date, 1'098'984'214, ""},
             {"November 21, 2026 at 3:03:50 PM", Date, 1'795'273'430, ""},
             {"51deg 1' 30\"", Position, 51.025, "\xc2\xb0"},
             {"12\xc2\xb0 30' 0\" W", Position, -12.5, "\xc2\xb0"},
         }) {
        const Quantity read = quantity(one.text);
        EXPECT_EQ(read.kind, one.kind) << one.text;
        EXPECT_NEAR(read.value, one.value, 1e-9 * std::abs(one.value)) << one.text;
        EXPECT_EQ(QString(read.unit), QString::fromUtf8(one.unit)) << one.text;
    }
}

TEST(Quantity, LeavesTextsAlone)
{
    for (const char *text :
         {"",
          " ",
          "5D",
          "4:3",
          "2.2.0.0",
          "MPEG-4",
          "0, 0, 255",
          "0x1",
          "1/0",
          "118-1861",
          "18.0 - 55.0 mm",
          "2021-13-01",
          "2021-02-30",
          "1 h 2 KB",
          "90 of 100",
          "F",
          "-",
          "12:34",
          "x264 core 148",
          "Nov",
          "()",
          "8 8 8",
          "99999999999999999999999999999999999999999999999999999999999999999999999999999999"})
        EXPECT_EQ(quantity(text).kind, Text) << text;
}

TEST(Quantity, ComparesWhatHasOneMeasure)
{
    const auto order = [](const char *left, const char *right) {
        return compareQuantities(quantity(left), quantity(right));
    };
    EXPECT_EQ(order("1 Mb/s", "999 kb/s"), 1);
    EXPECT_EQ(order("1/500 s", "2 ms"), 0);
    EXPECT_EQ(order("1 280 pixels", "1920"), -1);
    EXPECT_EQ(order("F5.6", "4"), 1);
    EXPECT_EQ(order("2020-01-01", "2019-12-31 23:59"), 1);
    EXPECT_EQ(order("1 MB", "1 Mb/s"), std::nullopt);
    EXPECT_EQ(order("1920x1080", "1 920 pixels"), std::nullopt);
    EXPECT_EQ(order("2020-01-01", "5"), std::nullopt);
    EXPECT_EQ(order("French", "5"), std::nullopt);
}

} // namespace quorvin
