// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/CommandLine.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using test::Outcome;
using test::runCommandLine;
using test::samplesFolder;
using test::TestFolder;

namespace {

using namespace Qt::StringLiterals;

/// The names of the samples that a rule leaves in the list.
QString listed(const QString &rule)
{
    const Outcome outcome = runCommandLine({u"list"_s, u"--filter"_s, rule, samplesFolder()});
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    QStringList names;
    for (const QByteArray &line : outcome.output.split('\n').mid(0, outcome.output.count('\n')))
        names.append(QString::fromUtf8(line).section(u'/', -1));
    return names.join(u' ');
}

} // namespace

TEST(CommandLineFilter, LeavesFilesThatSatisfyTheRule)
{
    EXPECT_EQ(listed(u"fileType = 'Video'"_s), u"matroska.mkv movie.mp4"_s);
    EXPECT_EQ(listed(u"[Audio/Language] = 'french' AND [Container/Duration] < 2010 ms"_s), u"movie.mp4"_s);
    EXPECT_EQ(listed(u"[File/Size] IN 87 KB..88.5 KB"_s), u"matroska.mkv tone.wav"_s);
    EXPECT_EQ(listed(u"failed"_s), QString());
}

TEST(CommandLineFilter, NarrowsEveryCommandThatReads)
{
    const QStringList rest{u"--filter"_s, u"parameterValue CONTAINS 'main feature'"_s, samplesFolder()};
    const Outcome general = runCommandLine(QStringList{u"general"_s} + rest);
    EXPECT_TRUE(general.output.startsWith("matroska.mkv\n"));
    EXPECT_EQ(general.output.count("Container:"), 1);
    const Outcome csv = runCommandLine(QStringList{u"export"_s, u"-f"_s, u"csv"_s} + rest);
    EXPECT_TRUE(csv.output.contains("matroska.mkv") && !csv.output.contains("movie.mp4"));
    const Outcome table = runCommandLine(QStringList{u"compare"_s} + rest);
    EXPECT_TRUE(table.output.contains("matroska.mkv") && !table.output.contains("movie.mp4"));
    EXPECT_EQ(runCommandLine({u"compare"_s, u"--pair"_s, u"--filter"_s, u"failed"_s, u"a"_s, u"b"_s}).status,
              2);
}

TEST(CommandLineFilter, MistakeStandsOverItsCaret)
{
    const Outcome outcome = runCommandLine({u"list"_s, u"--filter"_s, u"fileType\t= 'Film'"_s, u"x"_s});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_TRUE(outcome.output.isEmpty());
    EXPECT_EQ(outcome.errors,
              QByteArray("quorvin-cli: --filter: 'Video', 'Audio', 'Image' or 'Unknown' was expected\n"
                         "    fileType = 'Film'\n"
                         "               ^\n"
                         "quorvin-cli: try 'quorvin-cli --help'\n"));
}

TEST(CommandLineFilter, FailedFilesAreListedWithTheirReasons)
{
    const TestFolder folder;
    folder.write(u"good.txt"_s);
    const QString missing = folder / u"missing.mov"_s;
    const Outcome failed = runCommandLine({u"list"_s, u"--failed"_s, folder.path(), missing});
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.output, "missing.mov\t" + missing.toUtf8() + "\tNo such file or directory\n");
    EXPECT_TRUE(failed.errors.isEmpty()) << failed.errors.toStdString();

    const Outcome filtered
        = runCommandLine({u"list"_s, u"--filter"_s, u"NOT failed"_s, folder.path(), missing});
    EXPECT_EQ(filtered.status, 1);
    EXPECT_TRUE(filtered.output.endsWith("good.txt\n") && filtered.output.count('\n') == 1);
    EXPECT_TRUE(filtered.errors.contains(missing.toUtf8() + ": No such file or directory"));
}

} // namespace quorvin
