// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/CommandLine.h"
#include "support/TestFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace quorvin {

using test::contentOf;
using test::Outcome;
using test::runCommandLine;
using test::samplesFolder;
using test::TestFolder;

namespace {

using namespace Qt::StringLiterals;

Outcome stats(const QString &parameter, const QStringList &rest)
{
    return runCommandLine(QStringList{u"stats"_s, u"--parameter"_s, parameter} + rest);
}

} // namespace

TEST(CommandLineStats, TextTellsFiguresAndValues)
{
    const Outcome outcome = stats(u"Audio/Sampling rate"_s, {samplesFolder()});
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.output.startsWith("5 of 8 files have Audio/Sampling rate: "))
        << outcome.output.toStdString();
    EXPECT_TRUE(outcome.output.contains("\nLeast: 44.1 kHz\n")
                && outcome.output.contains("\nGreatest: 48 kHz\n"));
    EXPECT_TRUE(outcome.output.contains("         2         4  00:00:05    153 KB  48.0 kHz\n"))
        << outcome.output.toStdString();
    EXPECT_TRUE(outcome.output.endsWith("(not in this file)\n"));
}

TEST(CommandLineStats, DocumentsHaveTheNumbersThemselves)
{
    const Outcome csv = stats(u"File/Name"_s, {u"-f"_s, u"csv"_s, samplesFolder() + u"/tone.wav"_s});
    EXPECT_EQ(csv.output,
              "\xef\xbb\xbf\"Row\",\"Value\",\"Files\",\"Streams\",\"Duration (ms)\",\"Size (bytes)\"\n"
              "\"value\",\"tone.wav\",\"1\",\"1\",\"500\",\"88278\"");

    const TestFolder folder;
    const QString path = folder / u"rates.json"_s;
    const QStringList wanted{
        u"-f"_s, u"json"_s, u"-o"_s, path, u"--filter"_s, u"fileType != 'Image'"_s, samplesFolder()};
    ASSERT_EQ(stats(u"Audio/Bit rate"_s, wanted).status, 0);
    const QJsonObject json = QJsonDocument::fromJson(contentOf(path)).object();
    EXPECT_EQ(json[u"files"_s].toInt(), 5);
    EXPECT_EQ(json[u"with"_s].toInt(), 5);
    EXPECT_EQ(json[u"missing"_s].toInt(), 0);
    EXPECT_EQ(json[u"values"_s].toArray().size(), 7);
    const QJsonObject number = json[u"number"_s].toObject();
    EXPECT_EQ(number[u"unit"_s].toString(), u"b/s"_s);
    EXPECT_DOUBLE_EQ(number[u"greatest"_s].toDouble(), 1'411'200);
    EXPECT_EQ(number[u"quartiles"_s].toArray().size(), 2);
    EXPECT_EQ(stats(u"Audio/Format"_s, {u"-f"_s, u"json"_s, samplesFolder()}).output.count("\"number\""), 0);
}

TEST(CommandLineStats, UnknownParameterIsAWrongCall)
{
    const QString file = samplesFolder() + u"/tone.wav"_s;
    const Outcome mistyped = stats(u"audio/bitrate"_s, {file});
    EXPECT_EQ(mistyped.status, 2);
    EXPECT_TRUE(mistyped.output.isEmpty());
    EXPECT_TRUE(mistyped.errors.contains("no file has 'audio/bitrate'; did you mean 'Audio/Bit rate'"))
        << mistyped.errors.toStdString();
    EXPECT_EQ(stats(u"Bit rate"_s, {file}).status, 2);
    EXPECT_EQ(runCommandLine({u"stats"_s, file}).status, 2);
    EXPECT_EQ(stats(u"File/Name"_s, {u"-o"_s, file, file}).status, 2);
}

TEST(CommandLineStats, FailedFilesAreToldAndTheOthersCounted)
{
    const Outcome outcome
        = stats(u"File/Name"_s, {u"-f"_s, u"csv"_s, samplesFolder() + u"/tone.wav"_s, u"/no/such"_s});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.output.contains("\"tone.wav\",\"1\""));
    EXPECT_TRUE(outcome.errors.contains("/no/such: No such file or directory"));
    const Outcome none = stats(u"File/Name"_s, {u"--filter"_s, u"failed"_s, samplesFolder()});
    EXPECT_EQ(none.status, 0);
    EXPECT_TRUE(none.output.startsWith("There is no file to count."));
}

} // namespace quorvin
