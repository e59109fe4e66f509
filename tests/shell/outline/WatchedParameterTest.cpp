// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/WatchedParameter.h"

#include "shell/outline/ExtTreeModel.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;

namespace {

ExtTreeItemPtr stream(quint64 number, const QString &width)
{
    const QString name = number > 0 ? u"Video #%1"_s.arg(number) : u"Video"_s;
    const ExtTreeItemPtr inner = ExtTreeItem::groupTreeWithKey(
        u"Lens"_s, u"Lens"_s, {ExtTreeItem::itemWithKey(u"f"_s, u"F"_s, width)}, 0);
    return ExtTreeItem::groupTreeWithKey(
        u"Video"_s, name, {ExtTreeItem::itemWithKey(u"w"_s, u"Width"_s, width), inner}, number);
}

/// The value that the watched row of the first tree has in the other.
QString valueIn(const ExtTreeItems &other, const ExtTreeItems &first, int group, int row, bool inner = false)
{
    ExtTreeModel tree;
    tree.setContent(first);
    QModelIndex index = tree.index(row, ExtTreeModel::Value, tree.index(group, 0));
    if (inner)
        index = tree.index(0, 0, index.siblingAtColumn(0));
    const auto parameter = watchedParameterAt(tree, index);
    if (!parameter)
        return u"none"_s;
    const WatchedParameters kept = watchedFromText(textOfWatched({*parameter}));
    EXPECT_EQ(kept, WatchedParameters{*parameter}) << "settings keep it whole";
    const ExtTreeItem *item = findWatched(other, kept.front());
    return item ? item->stringValue() : u"missing"_s;
}

} // namespace

TEST(WatchedParameter, IsFoundInOtherFilesByItsStream)
{
    const ExtTreeItems one{stream(0, u"10"_s)};
    const ExtTreeItems two{stream(1, u"20"_s), stream(2, u"30"_s)};
    EXPECT_EQ(valueIn(two, two, 1, 0), u"30"_s);
    EXPECT_EQ(valueIn(one, two, 0, 0), u"10"_s) << "the only one is the first";
    EXPECT_EQ(valueIn(one, two, 1, 0), u"missing"_s) << "and no other";
    EXPECT_EQ(valueIn(two, one, 0, 0), u"20"_s);
    EXPECT_EQ(valueIn(two, one, 0, 1, true), u"20"_s) << "in a group of the group";
    EXPECT_EQ(valueIn({ExtTreeItem::groupTreeWithKey(u"Audio"_s, u"Audio"_s, {}, 0)}, one, 0, 0),
              u"missing"_s);
    EXPECT_EQ(valueIn(one, one, 0, 1), u"none"_s) << "a group";
    ExtTreeModel tree;
    tree.setContent(two);
    EXPECT_EQ(watchedParameterAt(tree, tree.index(0, 0, tree.index(1, 0)))->title(), u"Video #2: Width"_s);
    EXPECT_FALSE(watchedParameterAt(tree, {}));
}

TEST(WatchedParameter, BelievesNoBrokenSettings)
{
    EXPECT_EQ(textOfWatched({}), QString());
    for (const QString &text :
         {u""_s, u"{"_s, u"[1,[],[\"a\"]]"_s, u"[[\"a\",0,\"\",\"b\"]]"_s, u"[[\"a\",0,\"b\"]]"_s})
        EXPECT_TRUE(watchedFromText(text).empty()) << text.toStdString();
    EXPECT_EQ(watchedFromText(u"[[\"a\",-3,\"b\",\"c\"],7]"_s),
              (WatchedParameters{{u"a"_s, 0, u"b"_s, u"c"_s}}));
}

} // namespace quorvin
