// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparedFiles.h"

#include "shell/compare/ColumnWidths.h"
#include "support/TestRecords.h"

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;

namespace {

FilelistItemPtr file(const QString &name, bool isRead = true)
{
    FilelistItemPtr made = FilelistItem::itemWithFilename(u"/x/"_s + name, name);
    if (isRead)
        made->setResult(test::recordOf({u"Video/width="_s + name, u"Video/codec=avc"_s}));
    return made;
}

QString names(const ComparedFiles &compared)
{
    return orderedPaths(compared.files(), compared.order()).replaceInStrings(u"/x/"_s, u""_s).join(u' ');
}

struct ComparedFilesTest : testing::Test {
    const std::vector<FilelistItemPtr> list{file(u"a"_s), file(u"waiting"_s, false), file(u"b"_s),
                                            file(u"c"_s), file(u"d"_s)};
    ComparedFiles compared;
};

} // namespace

TEST_F(ComparedFilesTest, AreTheFirstThatHaveARecord)
{
    EXPECT_TRUE(compared.take(list, 3));
    EXPECT_EQ(names(compared), u"a b c"_s);
    EXPECT_EQ(compared.counts(), (ComparedCounts{3, 4, 0}));
    EXPECT_FALSE(compared.take(list, 3)) << "nothing to be made anew";
    list[1]->setResult(list[0]->quorvinData());
    EXPECT_TRUE(compared.take(list, 3));
    EXPECT_EQ(names(compared), u"a waiting b"_s);
    EXPECT_TRUE(compared.take({}, 3));
    EXPECT_EQ(compared.counts(), ComparedCounts());
}

TEST_F(ComparedFilesTest, ClosedOnesMakeRoomAndComeBack)
{
    compared.take(list, 3);
    compared.close(list[0]);
    EXPECT_TRUE(compared.take(list, 3));
    EXPECT_EQ(names(compared), u"b c d"_s);
    EXPECT_EQ(compared.counts(), (ComparedCounts{3, 4, 1}));
    compared.reopenAll();
    EXPECT_TRUE(compared.take(list, 3));
    EXPECT_EQ(names(compared), u"a b c"_s);
}

TEST_F(ComparedFilesTest, StayWhereTheyWerePutWhenOthersCome)
{
    compared.take(list, 70);
    const std::vector<ComparedFile> files = compared.files();
    compared.setOrder({files[3], files[0], files[2], files[1]});
    EXPECT_EQ(names(compared), u"d a c b"_s);
    list[1]->setResult(list[0]->quorvinData());
    compared.take(list, 70);
    EXPECT_EQ(names(compared), u"d a c b waiting"_s);
    const ComparisonContent rows = orderedRows(compared.files(), compared.order());
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].values, QStringList{u"Video"_s});
    EXPECT_EQ(rows[1].values.mid(1).join(u' '), u"d a c b a"_s);
    EXPECT_EQ(reordered(rows, {4, 3, 2, 1, 0})[1].values.mid(1).join(u' '), u"a b c a d"_s);
}

TEST(ColumnWidths, BelongToPlaces)
{
    ColumnWidths widths;
    EXPECT_EQ(widths.width(69), ColumnWidths::kUsual);
    widths.setWidth(2, 90);
    widths.setWidth(0, 1);
    EXPECT_EQ(widths.text(), u"48,0,90"_s);
    const ColumnWidths again(widths.text());
    EXPECT_EQ(again.width(0), ColumnWidths::kLeast);
    EXPECT_EQ(again.width(1), ColumnWidths::kUsual);
    EXPECT_EQ(again.width(2), 90);
    const ColumnWidths strange(u"a,-5,99999999999,,300,7"_s);
    EXPECT_EQ(strange.width(4), 300);
    for (const int place : {0, 1, 2, 3, 5, 6})
        EXPECT_EQ(strange.width(place), ColumnWidths::kUsual) << place;
}

} // namespace quorvin
