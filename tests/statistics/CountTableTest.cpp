// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/CountTable.h"

#include "filter/RuleMatcher.h"
#include "filter/RuleText.h"
#include "statistics/CountText.h"
#include "statistics/ParameterCoverage.h"
#include "statistics/ParameterTally.h"
#include "support/CountedFiles.h"
#include "support/IndexedFiles.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>

namespace quorvin {

using test::counted;
using test::filesOfValues;
using test::fileWith;
using test::linesOf;
using test::readFile;

namespace {

using namespace Qt::StringLiterals;

/// Films with several sounds, one without, one that failed, one that waits.
std::vector<FilelistItemPtr> films()
{
    return {
        readFile({u"Audio#1/rate=96 kb/s"_s, u"Audio#2/rate=128 kb/s"_s}, 1000, 10),
        readFile({u"Audio#1/rate=96 kb/s"_s, u"Audio#2/rate=96 kb/s"_s}, 2000, 20),
        readFile({u"Video#0/rate=5 Mb/s"_s}, 4000, 40),
        fileWith(failure(u"is damaged"_s)),
        FilelistItem::itemWithFilename(u"/waits"_s, u"waits"_s),
        readFile({u"Audio#0/rate=unknown"_s, u"Audio#0/rate=7 kb/s"_s}, 8000, 80),
    };
}

std::vector<std::size_t> rowsOfText(const CountTable &table, const QString &text)
{
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < table.rows().size(); ++row) {
        if (table.rows()[row].text == text)
            rows.push_back(row);
    }
    return rows;
}

/// Each row's files are those that its rule lets through, after a way through its text.
void expectRulesToSelect(const CountTable &table, const std::vector<FilelistItemPtr> &files)
{
    for (std::size_t row = 0; row < table.rows().size(); ++row) {
        const auto rule = table.ruleOf({&row, 1});
        const auto own = table.filesOf({&row, 1});
        EXPECT_EQ(rule.has_value(), !own.empty()) << table.rows()[row].text.toStdString();
        if (!rule)
            continue;
        const auto parsed = parseRule(textOfRule(*rule));
        ASSERT_TRUE(parsed) << textOfRule(*rule).toStdString();
        const RuleMatcher matcher(*parsed);
        std::vector<FilelistItemPtr> passed;
        std::ranges::copy_if(files, std::back_inserter(passed),
                             [&](const FilelistItemPtr &file) { return matcher.matches(*file); });
        EXPECT_EQ(passed, own) << textOfRule(*rule).toStdString();
    }
}

} // namespace

TEST(CountTable, CountsFilesAndStreamsOfEachValue)
{
    const auto files = films();
    const CountTable table(counted(u"audio/RATE"_s, files), {});
    EXPECT_EQ(linesOf(table),
              QStringList({u"2 3 96 kb/s"_s, u"1 1 7 kb/s"_s, u"1 1 128 kb/s"_s, u"1 1 unknown"_s,
                           u"1 0 not in this file"_s, u"1 0 could not be read"_s}));
    EXPECT_EQ(table.rows()[0].sum, (CountSum{2, 3, 3000, 30}));
    EXPECT_EQ(table.count().unread, 1);
    EXPECT_EQ(table.count().countedFiles(), 4);
    EXPECT_EQ(table.count().filesWithValue(), 3);
    EXPECT_EQ(
        headlineOf(table),
        u"3 of 4 files have audio/RATE: 4 different values, most often “96 kb/s” (2 files); from 7 kb/s to"
        " 128 kb/s, half of them from 96 kb/s to 96 kb/s."_s);
    const std::vector<std::size_t> both{0, 2};
    EXPECT_EQ(table.filesOf(both), (std::vector{files[0], files[1]}));
    expectRulesToSelect(table, files);
}

TEST(CountTable, CountsAlikeByIndexAndByRecords)
{
    const auto files = films();
    for (const QString &parameter : {u"Audio/rate"_s, u"Video/RATE"_s, u"No/such"_s, QString(kFailures)}) {
        ParameterTally tally(parameter);
        for (const FilelistItemPtr &file : files) {
            if (const QuorvinDataPtr record = file->quorvinData())
                tally.add(file, *record);
            else if (file->isFailed())
                tally.addFailed(file, file->failureReason());
        }
        EXPECT_EQ(linesOf(CountTable(tally.finish(), {})),
                  linesOf(CountTable(counted(parameter, files), {})));
    }
    EXPECT_EQ(linesOf(CountTable(counted(kFailures, files), {})),
              QStringList({u"1 1 is damaged"_s, u"4 0 could be read"_s}));
}

TEST(CountTable, RangesHoldEachFileOnceAndTellTheRest)
{
    auto files = films();
    files.push_back(
        readFile({u"Audio#1/rate=100 kb/s"_s, u"Audio#2/rate=99 kb/s"_s, u"Audio#3/rate=16 kb/s"_s}));
    const CountTable table(counted(u"Audio/rate"_s, files), {.inRanges = true});
    EXPECT_EQ(linesOf(table),
              QStringList({u"2 2 0 – 20 kb/s"_s, u"0 0 20 – 40 kb/s"_s, u"0 0 40 – 60 kb/s"_s,
                           u"0 0 60 – 80 kb/s"_s, u"3 4 80 – 100 kb/s"_s, u"1 1 100 – 120 kb/s"_s,
                           u"1 1 120 – 140 kb/s"_s, u"1 1 cannot be compared"_s, u"1 0 not in this file"_s,
                           u"1 0 could not be read"_s}))
        << linesOf(table).join(u'\n').toStdString();
    expectRulesToSelect(table, files);
}

TEST(CountTable, DatesStandAlongTheTimeOrByTheHour)
{
    const auto files
        = filesOfValues({u"2021:03:04 05:06:07"_s, u"2021-05-31T23:59:59"_s, u"2021-06-01 00:00:00"_s,
                         u"2021:06:30 05:59:00"_s, u"0000:00:00 00:00:00"_s});
    const auto count = counted(u"Video/rate"_s, files);
    const CountTable months(count, {.inRanges = true, .step = DateStep::Month});
    EXPECT_EQ(linesOf(months),
              QStringList({u"1 1 2021-03"_s, u"0 0 2021-04"_s, u"1 1 2021-05"_s, u"2 2 2021-06"_s,
                           u"1 1 cannot be compared"_s}));
    const CountTable hours(count, {.inRanges = true, .step = DateStep::HourOfDay});
    EXPECT_EQ(hours.counted().size(), 24);
    EXPECT_EQ(linesOf(hours).filter(u"5 h"_s).first(), u"2 2 5 h"_s);
    EXPECT_EQ(hours.filesOf(rowsOfText(hours, u"5 h"_s)), (std::vector{files[0], files[3]}));
    EXPECT_EQ(CountTable(count, {.inRanges = true}).step(), DateStep::Month);
    expectRulesToSelect(months, files);
    expectRulesToSelect(hours, files);
}

TEST(CountTable, RuleOfTooManyValuesIsNotOffered)
{
    QStringList values;
    for (std::size_t i = 0; i <= kMostConditions; ++i)
        values.append(u"name %1"_s.arg(i));
    const auto files = filesOfValues(values);
    const CountTable table(counted(u"Video/rate"_s, files), {});
    std::vector<std::size_t> rows(table.rows().size());
    std::iota(rows.begin(), rows.end(), 0);
    EXPECT_FALSE(table.ruleOf(rows));
    rows.pop_back();
    EXPECT_TRUE(table.ruleOf(rows));
    EXPECT_EQ(table.filesOf(rows).size(), kMostConditions);
}

TEST(CountText, WritesWhatStandsInTheWay)
{
    const CountTable table(
        counted(u"Video/rate"_s, filesOfValues({u"=a \"b\"\nc\t"_s, u"=a \"b\"\nc\t"_s, u"d"_s})), {});
    const auto documentOf = [](const QString &format, const CountTable &of) {
        QBuffer bytes;
        bytes.open(QIODevice::WriteOnly);
        EXPECT_TRUE(writeCount(format, of, bytes));
        return QString::fromUtf8(bytes.data());
    };
    EXPECT_TRUE(documentOf(u"txt"_s, table).contains(u"  =a \"b\" c\n"_s));
    EXPECT_TRUE(documentOf(u"csv"_s, table).contains(u"\"value\",\"'=a \"\"b\"\"\nc\t\",\"2\""_s));
    EXPECT_TRUE(documentOf(u"json"_s, table).contains(u"\"=a \\\"b\\\"\\nc\\t\""_s));
    EXPECT_EQ(tabbedText(table.rows().first(1)).section(u'\n', 1), u"value\t=a \"b\" c \t2\t2\t0\t0"_s);

    const CountTable dates(
        counted(u"Video/rate"_s, filesOfValues({u"2021:03:04 05:06:07"_s, u"2021-03-06"_s})), {});
    const QString json = documentOf(u"json"_s, dates);
    EXPECT_TRUE(json.contains(u"\"unit\": \"date\""_s)
                && json.contains(u"\"least\": \"2021-03-04T05:06:07\""_s))
        << json.toStdString();
    QBuffer closed;
    EXPECT_FALSE(writeCount(u"csv"_s, table, closed));
}

TEST(ParameterCoverage, CountsFilesAndDistinctValues)
{
    const auto files = films();
    RecordIndex index;
    for (const FilelistItemPtr &file : files)
        index.put(file, file->quorvinData());
    const std::vector<ParameterCoverage> expected{{u"Audio/RATE"_s, 3, 4}, {u"Video/RATE"_s, 1, 1}};
    EXPECT_EQ(coverageOf(index, files), expected);
    EXPECT_EQ(coverageOf(index, std::span(files).subspan(1, 1)).front().values, 1);
    EXPECT_EQ(failureCoverageOf(index, std::span(files).first(4)), (ParameterCoverage{kFailures, 1, 1}));
    EXPECT_EQ(failureCoverageOf(index, std::span(files).first(3)).files, 0);
}

TEST(ParameterCoverage, NamesLikeAMistypedOne)
{
    const QStringList known{u"Audio/Bit rate"_s, u"Video/Bit rate"_s, u"Video/Frame rate"_s, u"File/Name"_s};
    EXPECT_EQ(namesLike(u"video/bitrate"_s, known).first(), u"Video/Bit rate"_s);
    EXPECT_EQ(namesLike(u"Container/Bit rate"_s, known),
              QStringList({u"Audio/Bit rate"_s, u"Video/Bit rate"_s}));
    EXPECT_EQ(namesLike(u"XMP/Creator"_s, known), QStringList());
}

} // namespace quorvin
