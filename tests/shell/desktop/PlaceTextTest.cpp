// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/PlaceText.h"

#include "places/Towns.h"
#include "shell/desktop/TownLookup.h"
#include "support/Events.h"

#include <gtest/gtest.h>

#include <memory>

namespace quorvin {

using namespace Qt::StringLiterals;

namespace {

QString textFor(double metres, double bearing, const QString &name = u"Lausanne"_s,
                const QString &state = u"Vaud"_s, const QString &country = u"Switzerland"_s)
{
    const Town town{name, state, country, {}, {}, 1};
    return placeText({&town, metres, bearing});
}

} // namespace

TEST(PlaceText, TellsDistanceAndWindAsPeopleDo)
{
    EXPECT_EQ(textFor(3200, 225), u"3 km SW of Lausanne, Vaud, Switzerland"_s);
    EXPECT_EQ(textFor(999, 10), u"Lausanne, Vaud, Switzerland"_s);
    EXPECT_EQ(textFor(1000, 359), u"1 km N of Lausanne, Vaud, Switzerland"_s);
    EXPECT_EQ(textFor(1000, 337), u"1 km NW of Lausanne, Vaud, Switzerland"_s);
    EXPECT_EQ(textFor(99'400, 112), u"99 km E of Lausanne, Vaud, Switzerland"_s);
    EXPECT_EQ(textFor(344'000, 113), u"340 km SE of Lausanne, Vaud, Switzerland"_s);
    EXPECT_EQ(textFor(1'846'000, 180), u"1,800 km S of Lausanne, Vaud, Switzerland"_s);
}

TEST(PlaceText, SaysNoNameTwiceAndTakesNamesAsTheyAre)
{
    EXPECT_EQ(textFor(0, 0, u"Geneva"_s, u"Canton of Geneva"_s), u"Geneva, Switzerland"_s);
    EXPECT_EQ(textFor(0, 0, u"Singapore"_s, {}, u"Singapore"_s), u"Singapore"_s);
    EXPECT_EQ(textFor(2000, 90, u"%1 %3"_s, {}, {}), u"2 km E of %1 %3"_s);
}

TEST(TownLookup, AnswersOnceTheTownsHaveCome)
{
    TownLookup lookup;
    int ready = 0;
    QObject::connect(&lookup, &TownLookup::ready, [&ready] { ++ready; });
    const Location lausanne{46.516, 6.632};
    EXPECT_FALSE(lookup.placeOf(lausanne)) << "nobody waits for them";
    EXPECT_FALSE(lookup.placeOf(lausanne));
    ASSERT_TRUE(test::spinUntil([&ready] { return ready > 0; }));
    EXPECT_EQ(ready, 1);
    EXPECT_FALSE(lookup.placeOf({91, 0}));
    if (Towns::instance().towns().empty())
        GTEST_SKIP() << "the library of towns is not here";
    EXPECT_TRUE(lookup.placeOf(lausanne).value_or(QString()).startsWith(u"Lausanne, "_s));

    auto gone = std::make_unique<TownLookup>();
    gone->placeOf(lausanne);
    gone.reset();
}

} // namespace quorvin
