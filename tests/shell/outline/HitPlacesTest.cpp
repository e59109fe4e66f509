// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/HitPlaces.h"

#include "shell/outline/ExtTreeModel.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;

namespace {

/// The text with what is found in brackets.
QString marked(QString text, const QString &wanted)
{
    const auto places = hitPlaces(SearchText(wanted), text, 3);
    for (auto place = places.rbegin(); place != places.rend(); ++place)
        text.insert(place->start + place->length, u']').insert(place->start, u'[');
    return text;
}

} // namespace

TEST(HitPlaces, StandOnWholeLetters)
{
    EXPECT_EQ(marked(u"ISO iso Iso iso"_s, u"iSo"_s), u"[ISO] [iso] [Iso] iso"_s) << "no more than three";
    EXPECT_EQ(marked(u"aaa"_s, u"aa"_s), u"[aa]a"_s);
    EXPECT_EQ(marked(u"Cafe\u0301 au lait"_s, u"CAF\u00c9"_s), u"[Cafe\u0301] au lait"_s);
    EXPECT_EQ(marked(u"Stra\u00dfe"_s, u"SS"_s), u"Stra[\u00df]e"_s);
    EXPECT_EQ(marked(u"Stra\u00dfe"_s, u"s"_s), u"[S]tra[\u00df]e"_s) << "once for both halves";
    EXPECT_EQ(marked(u"\u0421\u041d\u0418\u041c\u041e\u041a"_s, u"\u0441\u043d"_s),
              u"[\u0421\u041d]\u0418\u041c\u041e\u041a"_s);
    EXPECT_EQ(marked(u"\U0001F600 x \U0001F600"_s, u"x"_s), u"\U0001F600 [x] \U0001F600"_s);
    EXPECT_EQ(marked(u"any"_s, u""_s), u"any"_s);
}

TEST(HitPlaces, RowsFollowInTheOrderOfTheTree)
{
    const auto leaf = [](const QString &name, const QString &value) {
        return ExtTreeItem::itemWithKey(name, name, value);
    };
    const auto group = [](const QString &name, ExtTreeItems children) {
        return ExtTreeItem::groupTreeWithKey(name, name, std::move(children), 0);
    };
    ExtTreeModel tree;
    tree.setContent(
        {group(u"hit"_s, {leaf(u"a"_s, u"Hit"_s), leaf(u"b"_s, u"no"_s)}),
         group(u"B"_s, {group(u"C"_s, {leaf(u"a hit"_s, u"c"_s)}), leaf(u"d"_s, u"white hits"_s)})});
    const SearchText wanted(u"hit"_s);
    for (const bool backwards : {false, true}) {
        QStringList names;
        for (QModelIndex row = nextHit(tree, wanted, {}, backwards); row.isValid();
             row = nextHit(tree, wanted, row, backwards))
            names.append(row.data().toString());
        EXPECT_EQ(names.join(u','), backwards ? u"d,a hit,a"_s : u"a,a hit,d"_s);
    }
    const QModelIndex value = tree.index(1, ExtTreeModel::Value, tree.index(0, 0));
    EXPECT_EQ(nextHit(tree, wanted, value, false).data().toString(), u"a hit"_s) << "from any cell of a row";
}

} // namespace quorvin
