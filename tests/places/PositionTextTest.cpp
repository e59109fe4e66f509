// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/PositionText.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using namespace Qt::StringLiterals;
using enum PositionNotation;

TEST(PositionText, writesEachNotation)
{
    constexpr Location kLausanne{46.5197, 6.6323};
    EXPECT_EQ(positionText(kLausanne, Decimal), u"46.51970, 6.63230"_s);
    EXPECT_EQ(positionText(kLausanne, Sexagesimal), u"46°31'10.9\"N 6°37'56.3\"E"_s);
    EXPECT_EQ(positionText(kLausanne, GeoUri), u"geo:46.5197,6.6323"_s);
    EXPECT_EQ(positionText({-33.05, -70.002}, Sexagesimal), u"33°03'00.0\"S 70°00'07.2\"W"_s);
    EXPECT_EQ(positionText({-90, 12}, GeoUri), u"geo:-90,0"_s);
}

TEST(PositionText, roundsWithoutSixtyOrMinusZero)
{
    EXPECT_EQ(positionText({9.99999999, -0.999999}, Sexagesimal), u"10°00'00.0\"N 1°00'00.0\"W"_s);
    EXPECT_EQ(positionText({-0.00000001, -0.0}, Sexagesimal), u"0°00'00.0\"N 0°00'00.0\"E"_s);
    EXPECT_EQ(positionText({-0.000004, -0.0}, Decimal), u"0.00000, 0.00000"_s);
    EXPECT_EQ(positionText({-0.00000004, 1e-7}, GeoUri), u"geo:0,0.0000001"_s);
    EXPECT_EQ(degreesText(100), u"100"_s);
    EXPECT_EQ(degreesText(-0.0000001), u"-0.0000001"_s);
    EXPECT_EQ(degreesText(179.99999999), u"180"_s);
}

} // namespace
} // namespace quorvin
