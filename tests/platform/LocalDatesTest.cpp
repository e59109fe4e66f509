// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LocalDates.h"

#include "support/TestFolder.h"
#include "support/TimeZone.h"

#include <gtest/gtest.h>

namespace quorvin {

TEST(LocalDates, ZonesAreThoseOfTheSystem)
{
    constexpr qint64 kWinter = 1'614'834'367'000;
    constexpr qint64 kSummer = 1'625'000'000'000;
    const auto dates = [](const char *zone) {
        const test::TimeZone here(zone);
        return fixedDate(kWinter) + u' ' + fixedDate(kSummer);
    };
    EXPECT_EQ(dates("UTC"), QStringLiteral("2021-03-04T05:06:07Z 2021-06-29T20:53:20Z"));
    const QString berlin = QStringLiteral("2021-03-04T06:06:07+01:00 2021-06-29T22:53:20+02:00");
    EXPECT_EQ(dates("Europe/Berlin"), berlin);
    EXPECT_EQ(dates("CET-1CEST,M3.5.0,M10.5.0/3"), berlin);
    EXPECT_EQ(dates("EAST-05:45"), QStringLiteral("2021-03-04T10:51:07+05:45 2021-06-30T02:38:20+05:45"));
    const test::TimeZone here("WEST+3");
    EXPECT_TRUE(localizedDate(kWinter).contains(QStringLiteral("2:06:07")));
    EXPECT_EQ(fixedDate(-1), QStringLiteral("1969-12-31T20:59:59-03:00"));
}

} // namespace quorvin
