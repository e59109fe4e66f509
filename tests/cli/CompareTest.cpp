// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/CommandLine.h"
#include "support/TestFolder.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::contentOf;
using test::Outcome;
using test::runCommandLine;
using test::runInShell;
using test::sample;
using test::TestFolder;

namespace {

const QString kCompare = u"compare"_s;

QStringList paths(const QJsonObject &table)
{
    return table[u"files"_s].toVariant().toStringList();
}

QStringList sections(const QJsonObject &table)
{
    QStringList names;
    for (const QJsonValue &section : table[u"sections"_s].toArray())
        names.append(section[u"section"_s].toString());
    return names;
}

} // namespace

TEST(Compare, OfRealFilesHasAColumnAFileAndARowAParameter)
{
    const QString movie = sample(u"movie.mp4"_s);
    const QString matroska = sample(u"matroska.mkv"_s);
    const QString missing = u"/no/such/file.mov"_s;
    const Outcome json = runCommandLine({kCompare, u"-f"_s, u"json"_s, movie, missing, matroska});
    EXPECT_EQ(json.status, 1);
    EXPECT_EQ(json.errors, "quorvin-cli: /no/such/file.mov: No such file or directory\n");
    const QJsonObject table = QJsonDocument::fromJson(json.output).object();
    EXPECT_EQ(paths(table), (QStringList{matroska, movie}));
    const QStringList headings = sections(table);
    EXPECT_EQ(headings.first(3), (QStringList{u"File"_s, u"Container"_s, u"Video"_s}));
    EXPECT_TRUE(headings.contains(u"Audio #2"_s) && headings.contains(u"Menu/Chapters #2"_s));
    for (const QJsonValue &section : table[u"sections"_s].toArray()) {
        for (const QJsonValue &row : section[u"rows"_s].toArray()) {
            const QJsonArray values = row[u"values"_s].toArray();
            ASSERT_EQ(values.size(), 2);
            EXPECT_EQ(row[u"allEqual"_s].toBool(), values[0] == values[1]);
        }
    }

    const Outcome csv = runCommandLine({kCompare, movie, matroska});
    EXPECT_EQ(csv.status, 0);
    EXPECT_TRUE(csv.output.startsWith("\xef\xbb\xbf\"File\",,\n\"Name\",\"matroska.mkv\",\"movie.mp4\"\n"));
    EXPECT_FALSE(csv.output.endsWith('\n'));
    const Outcome html = runCommandLine({kCompare, u"-f"_s, u"html"_s, movie, matroska});
    EXPECT_TRUE(html.output.contains("<td class=h>matroska.mkv</td><td class=h>movie.mp4</td></tr>\n"));
}

TEST(Compare, TellsWhetherAnythingDiffers)
{
    const QString tone = sample(u"tone.wav"_s);
    const QStringList call{kCompare, u"--only-differing"_s, u"-f"_s, u"json"_s, tone};
    const Outcome equal = runCommandLine(call + QStringList{tone});
    EXPECT_EQ(equal.status, 0);
    EXPECT_TRUE(sections(QJsonDocument::fromJson(equal.output).object()).isEmpty());
    const Outcome differing = runCommandLine(call + QStringList{sample(u"movie.mp4"_s)});
    EXPECT_EQ(differing.status, 3);
    EXPECT_TRUE(differing.output.contains("tone.wav") && !differing.output.contains(": true"));
    EXPECT_EQ(runCommandLine(call + QStringList{sample(u"movie.mp4"_s), u"/no/file"_s}).status, 1);
}

TEST(Compare, WritesWholeFilesOrNone)
{
    const TestFolder folder;
    const QString tone = sample(u"tone.wav"_s);
    const QString table = folder / u"table.csv"_s;
    const Outcome direct = runCommandLine({kCompare, tone, tone});
    EXPECT_EQ(runCommandLine({kCompare, u"-o"_s, table, tone, tone}).status, 0);
    EXPECT_EQ(contentOf(table), direct.output);
    const QString notes = folder.write(u"notes.doc"_s, "mine");
    EXPECT_EQ(runCommandLine({kCompare, u"-o"_s, notes, tone}).status, 2);
    EXPECT_EQ(contentOf(notes), "mine");
    EXPECT_EQ(runCommandLine({kCompare, u"--force"_s, u"-o"_s, notes, tone, tone}).status, 0);
    EXPECT_EQ(contentOf(notes), direct.output);

    const Outcome nowhere = runCommandLine({kCompare, u"-o"_s, u"/no/such/folder/x"_s, tone});
    EXPECT_EQ(nowhere.status, 1);
    EXPECT_EQ(nowhere.errors, "quorvin-cli: /no/such/folder/x: No such file or directory\n");
    const TestFolder target;
    const Outcome cut = runInShell(
        u"ulimit -f 1; cli compare -f html -o '%1/x.html' '%2'"_s.arg(target.path(), test::samplesFolder()));
    EXPECT_EQ(cut.status, 1);
    EXPECT_TRUE(cut.errors.endsWith("x.html: File too large\n"));
    EXPECT_EQ(target.names(), QStringList());
    EXPECT_EQ(runInShell(u"cli compare '%1' >/dev/full"_s.arg(tone)).status, 1);
}

TEST(Compare, FoldersArePairedByTheNamesOfTheirFiles)
{
    const TestFolder before;
    const TestFolder after;
    const QByteArray tone = contentOf(sample(u"tone.wav"_s));
    const QByteArray movie = contentOf(sample(u"movie.mp4"_s));
    before.write(u"a/same.wav"_s, tone);
    after.write(u"a/same.wav"_s, tone);
    before.write(u"made.mp4"_s, movie);
    after.write(u"made.wav"_s, tone);
    before.write(u"two.wav"_s, tone);
    before.write(u"two.mp4"_s, movie);
    after.write(u"two.mp4"_s, movie);
    after.write(u"same.wav"_s, tone);

    const QStringList call{kCompare, u"--pair"_s, before.path(), after.path()};
    const Outcome outcome = runCommandLine(call);
    EXPECT_EQ(outcome.status, 3);
    const QList<QByteArray> lines = outcome.output.split('\n');
    ASSERT_EQ(lines.size(), 6) << outcome.output.toStdString();
    EXPECT_EQ(lines[0], "a/same.wav\ta/same.wav\tequal");
    EXPECT_TRUE(lines[1].startsWith("made.mp4\tmade.wav\tlost: Container/"));
    EXPECT_TRUE(lines[1].contains(", Video, ") && lines[1].contains("; changed: File/Size, "));
    EXPECT_EQ(lines[2], "-\tsame.wav\tonly in " + after.path().toUtf8());
    EXPECT_EQ(lines[3], "two.mp4\ttwo.mp4\tequal");
    EXPECT_EQ(lines[4], "two.wav\t-\tonly in " + before.path().toUtf8());
    EXPECT_EQ(runCommandLine(call + QStringList{u"--only-differing"_s}).output,
              (lines[1] + '\n' + lines[2] + '\n' + lines[4] + '\n'));

    EXPECT_EQ(runCommandLine({kCompare, u"--pair"_s, before.path(), before.path()}).status, 0);
}

TEST(Compare, PairsThatAreNoneAreTold)
{
    const TestFolder folder;
    const QString file = folder.write(u"x.wav"_s);
    for (const QStringList &words : {QStringList{folder.path()}, {folder.path(), file}, {file, file, file}}) {
        const Outcome outcome = runCommandLine(QStringList{kCompare, u"--pair"_s} + words);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_TRUE(outcome.errors.contains("two")) << outcome.errors.toStdString();
    }
    EXPECT_EQ(runCommandLine({kCompare, u"--pair"_s, u"-f"_s, u"csv"_s, folder.path(), folder.path()}).status,
              2);
    const Outcome missing = runCommandLine({kCompare, u"--pair"_s, folder.path(), u"/no/folder"_s});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.errors, "quorvin-cli: /no/folder: No such file or directory\n");

    // A file that ends its reader costs its own pair.
    const TestFolder other;
    for (const TestFolder *each : {&folder, &other}) {
        QFile::remove(*each / u"x.wav"_s);
        ASSERT_TRUE(QFile::link(u"/dev/null"_s, *each / u"odd.wav"_s));
        each->write(u"tone.wav"_s, contentOf(sample(u"tone.wav"_s)));
    }
    const Outcome odd = runCommandLine({kCompare, u"--pair"_s, folder.path(), other.path()});
    EXPECT_EQ(odd.status, 1);
    EXPECT_EQ(odd.output, "odd.wav\todd.wav\tnot compared\ntone.wav\ttone.wav\tequal\n");
    EXPECT_EQ(odd.errors.count('\n'), 2);
}

} // namespace quorvin
