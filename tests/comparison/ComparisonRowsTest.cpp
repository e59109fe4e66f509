// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/ComparisonRows.h"

#include "comparison/ComparisonFilter.h"
#include "support/TestFolder.h"
#include "support/TestRecords.h"

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;

namespace {

/// A line a row: "[Audio #1 1/2]" for a heading with its counts, "A | 1 | 2" for a parameter, with "=" in
/// front where it is equal in all files.
QStringList printed(const ComparisonContent &content)
{
    QStringList lines;
    for (const ComparisonRow &row : content) {
        if (row.isHeading())
            lines.append(u"[%1 %2/%3]"_s.arg(row.values.value(0)).arg(row.differing).arg(row.rows));
        else
            lines.append((row.allEqual ? u"= "_s : QString()) + row.values.join(u" | "_s));
    }
    return lines;
}

ComparisonContent rowsOf(const QList<QStringList> &files)
{
    std::vector<QuorvinDataPtr> records;
    for (const QStringList &file : files)
        records.push_back(test::recordOf(file));
    return comparisonRows(records);
}

} // namespace

TEST(ComparisonRows, SectionsAndParametersStandInTheOrderOfTheirFirstFiles)
{
    const auto content
        = rowsOf({{u"File/name=a"_s, u"Video/width=1"_s, u"Video/codec=x"_s},
                  {u"File/name=b"_s, u"Audio/rate=48"_s, u"Video/depth=8"_s, u"Video/codec=x"_s},
                  {u"File/size=9"_s, u"File/name=b"_s, u"Video/width=1"_s}});
    EXPECT_EQ(printed(content),
              (QStringList{u"[File 2/2]"_s, u"NAME | a | b | b"_s, u"SIZE |  |  | 9"_s, u"[Video 3/3]"_s,
                           u"WIDTH | 1 |  | 1"_s, u"CODEC | x | x | "_s, u"DEPTH |  | 8 | "_s,
                           u"[Audio 1/1]"_s, u"RATE |  | 48 | "_s}));
}

TEST(ComparisonRows, StreamsMeetByTheirNumber)
{
    const auto content = rowsOf({{u"Audio/codec=a"_s, u"Text#2/codec=t"_s},
                                 {u"Audio#1/codec=a"_s, u"Audio#2/codec=b"_s, u"Text#2/codec=t"_s}});
    EXPECT_EQ(printed(content),
              (QStringList{u"[Audio #1 0/1]"_s, u"= CODEC | a | a"_s, u"[Text #2 0/1]"_s,
                           u"= CODEC | t | t"_s, u"[Audio #2 1/1]"_s, u"CODEC |  | b"_s}));
    EXPECT_EQ(content.back().section, u"Audio"_s);
    EXPECT_EQ(content.back().stream, 2U);
    EXPECT_EQ(content.back().key, u"codec"_s);
    EXPECT_EQ(printed(rowsOf({{u"Image#0/size=1"_s}, {u"Image/size=2"_s}})),
              (QStringList{u"[Image 1/1]"_s, u"SIZE | 1 | 2"_s}));
}

TEST(ComparisonRows, LeaveOutWhatIsMarkedAndTakeTheLastOfARepeatedKey)
{
    const auto content = rowsOf({{u"File/date!=1"_s, u"Image/a=1"_s, u"Image/b=2"_s, u"Image/a=3"_s},
                                 {u"Image/a=3"_s, u"Image/b=2"_s, u"Image/b=\u00e9"_s},
                                 {u"Image/a=3"_s, u"Image/b=\ufeff\u00e9"_s}});
    EXPECT_EQ(printed(content),
              (QStringList{u"[Image 1/2]"_s, u"= A | 3 | 3 | 3"_s, u"B | 2 | \u00e9 | \ufeff\u00e9"_s}));
    EXPECT_TRUE(rowsOf({}).empty());
    EXPECT_TRUE(rowsOf({{}, {}}).empty());
}

TEST(ComparisonRows, OneFileIsEqualEverywhere)
{
    EXPECT_EQ(printed(rowsOf({{u"File/name=a"_s}})), (QStringList{u"[File 0/1]"_s, u"= NAME | a"_s}));
}

TEST(ComparisonRows, AreFilteredWithTheirHeadings)
{
    const auto content = rowsOf({{u"A/x=1"_s, u"B/y=1"_s, u"B/z=1"_s}, {u"A/x=1"_s, u"B/y=2"_s, u"B/z=1"_s}});
    EXPECT_EQ(printed(filtered(content, ComparisonFilter::All)), printed(content));
    EXPECT_EQ(printed(filtered(content, ComparisonFilter::Different)),
              (QStringList{u"[B 1/2]"_s, u"Y | 1 | 2"_s}));
    EXPECT_EQ(printed(filtered(content, ComparisonFilter::Equal)),
              (QStringList{u"[A 0/1]"_s, u"= X | 1 | 1"_s, u"[B 1/2]"_s, u"= Z | 1 | 1"_s}));
}

} // namespace quorvin
