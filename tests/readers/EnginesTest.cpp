// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/Engines.h"

#include "process/oExifToolStayOpenProcess.h"
#include "readers/FactTable.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

EngineVerdict verdict(const char *fact, const EngineWords &words)
{
    return verdictOn(*std::ranges::find(kFacts, QLatin1String(fact), &Fact::name), words);
}

} // namespace

TEST(Engines, AgreeByWhatTheyMean)
{
    using enum EngineVerdict;
    EXPECT_EQ(verdict("Width", {u"320"_s, u"320"_s, u"320.0"_s}), Agree);
    EXPECT_EQ(verdict("Width", {u"320"_s, u"321"_s, {}}), Differ);
    EXPECT_EQ(verdict("Duration (s)", {u"2.02"_s, {}, u"2"_s}), Agree);
    EXPECT_EQ(verdict("Duration (s)", {u"2.2"_s, {}, u"2"_s}), Differ);
    EXPECT_EQ(verdict("Latitude", {u"48.8577"_s, {}, u"48.857701"_s}), Agree);
    EXPECT_EQ(verdict("Date", {u"2018-02-21 12:08:56 UTC"_s, {}, u"2018:02:21 12:08:56+01:00"_s}), Agree);
    EXPECT_EQ(verdict("Date", {u"2018-02-21 12:08:56 UTC"_s, {}, u"0000:00:00 00:00:00"_s}), Alone);
    EXPECT_EQ(verdict("MIME type", {QString(), u"image/JPEG"_s, u"image/jpeg "_s}), Agree);
    EXPECT_EQ(verdict("Title", {}), Silent);
}

TEST(Engines, ReportTellsDifferencesFirstAndDoesWithoutExiftool)
{
    const auto alone = enginesReport(test::sample(u"photo.jpg"_s), nullptr);
    ASSERT_TRUE(alone);
    EXPECT_TRUE(alone->endsWith(u"exiftool is not installed\n"_s));
    EXPECT_TRUE(alone->contains(u"They agree:"_s)) << alone->toStdString();

    EXPECT_TRUE(alone->contains(u"Harbour at dawn"_s));
    EXPECT_FALSE(alone->contains(u"lang="_s)) << "the language of a text is no part of it";

    const auto process = oExifToolStayOpenProcess::init({});
    if (!process)
        GTEST_SKIP() << "no exiftool";
    const auto report = enginesReport(test::sample(u"movie.mp4"_s), process->get());
    ASSERT_TRUE(report);
    const QStringList lines = report->split(u'\n');
    const auto lineOf
        = [&](const char *fact) { return lines.filter(QLatin1String(fact)).value(0).simplified(); };
    EXPECT_EQ(lineOf("Width"), u"Width 320 - 320"_s);
    EXPECT_EQ(lineOf("Latitude"), u"Latitude 48.8577 - 48.8577"_s);
    EXPECT_EQ(lineOf("Duration"), u"Duration (s) 2 - 2"_s);
    EXPECT_GE(lines.indexOf(u"They agree:"_s), 1);
    EXPECT_LT(lines.indexOf(u"They differ:"_s), lines.indexOf(u"They agree:"_s));
    EXPECT_FALSE(enginesReport(u"/none"_s, process->get()));
}

} // namespace quorvin
