// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/CommandLine.h"

#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace quorvin {

using test::commandLineProgram;
using test::contentOf;
using test::Outcome;
using test::runCommandLine;
using test::runInShell;
using test::sample;
using test::TestFolder;

namespace {

QString words(const char *line)
{
    return QLatin1String(line);
}

} // namespace

TEST(CommandLine, WrongCallsSayWhatAndWhereToLook)
{
    for (const char *line :
         {"", "frob", "export", "list --bad x", "export -f doc x", "export -o a -d b x",
          "raw --source none x", "export --jobs 0 x", "list --set none=1 x", "list --set useSIUnits=2 x",
          "export --jobs 257 x", "settings x", "list --files-from /no/such/file"}) {
        const Outcome outcome = runCommandLine(words(line).split(u' ', Qt::SkipEmptyParts));
        EXPECT_EQ(outcome.status, 2) << line;
        EXPECT_TRUE(outcome.output.isEmpty()) << line;
        EXPECT_EQ(outcome.errors.count('\n'), 2) << line;
        EXPECT_TRUE(outcome.errors.endsWith("quorvin-cli: try 'quorvin-cli --help'\n")) << line;
    }
    EXPECT_TRUE(runCommandLine({words("--help")}).output.startsWith("Usage: quorvin-cli COMMAND"));
    EXPECT_TRUE(runCommandLine({words("export"), words("--help")}).output.contains("--skip-private"));
    EXPECT_TRUE(runCommandLine({words("--version")}).output.contains("MediaInfoLib - v"));
}

TEST(CommandLine, ReaderOfTheCurrentFolderIsNeverRun)
{
    const TestFolder folder;
    const QString mark = folder / words("mark");
    const QString program
        = folder.write(words("quorvin-reader"), "#!/bin/sh\ntouch '" + mark.toUtf8() + "'\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    // Where /proc shows nothing, a program does not know its own place.
    const QString call
        = QStringLiteral("cd '%1' && unshare %2 sh -c 'mount -t tmpfs none /proc && exec \"$@\"' - "
                         "'%3' general '%4'")
              .arg(folder.path(), QStringLiteral("%1"), commandLineProgram(), sample(words("tone.wav")));
    Outcome outcome = runInShell(call.arg(words("-m")));
    if (!outcome.errors.contains("quorvin-cli"))
        outcome = runInShell(call.arg(words("-rm")));
    if (!outcome.errors.contains("quorvin-cli"))
        GTEST_SKIP() << "nothing may be mounted here";
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.errors.endsWith("tone.wav: the reader can not be started\n"));
    EXPECT_FALSE(QFile::exists(mark));
}

TEST(CommandLine, BadFilesCostTheirOwnLineOnly)
{
    const TestFolder folder;
    folder.write(words("b.wav"), contentOf(sample(words("tone.wav"))));
    ASSERT_EQ(::mkfifo((folder / words("a.fifo")).toUtf8().constData(), 0600), 0);
    const Outcome outcome = runCommandLine({words("general"), folder.path(), folder / words("two\nlines")});
    const QByteArray place = folder.path().toUtf8();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
              "quorvin-cli: " + place + "/a.fifo: Is a FIFO, not a regular file\n" + "quorvin-cli: " + place
                  + "/two\\nlines: No such file or directory\n");
    EXPECT_TRUE(outcome.output.endsWith("/b.wav\n"
                                        + QByteArray(place.size() - place.lastIndexOf('/') - 1 + 6, '-')
                                        + "\nContainer: Wave, 88.3 KB, 00:00:01, 1 412 kb/s\n"
                                          "Audio: PCM, 1 411.2 kb/s CBR, 44.1 kHz, Stereo\n"));
}

TEST(CommandLine, PathsThatAreMissingAreErrorsEverywhere)
{
    const Outcome none = runCommandLine({words("list"), words("/none"), sample(words("tone.wav"))});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.errors, "quorvin-cli: /none: No such file or directory\n");
    EXPECT_EQ(none.output.count('\n'), 1);

    EXPECT_EQ(runCommandLine({words("list"), QString()}).status, 2);
    const TestFolder folder;
    const Outcome gone = test::runInShell(
        words("cd '%1' && mkdir x && cd x && rmdir ../x && cli list a").arg(folder.path()));
    EXPECT_EQ(gone.status, 2);
    EXPECT_EQ(gone.output, "");
}

TEST(CommandLine, ListTakesAndGivesZeroBytes)
{
    const TestFolder folder;
    const QByteArray two = folder.write(words("2\n")).toUtf8();
    const QByteArray ten = folder.write(words("10")).toUtf8();
    const Outcome outcome = runCommandLine({words("list"), words("-0"), words("--files-from"), words("-")},
                                           ten + '\0' + two + '\0');
    EXPECT_EQ(outcome.output, "2\n\t" + two + '\0' + "10\t" + ten + '\0');
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(runCommandLine({words("list"), words("--files-from"), words("-")}, ten + '\n').output,
              "10\t" + ten + '\n');
}

TEST(CommandLine, ExportIsTheSameToEveryPlace)
{
    const TestFolder folder;
    const QString output = folder / words("all.txt");
    const QString samples = test::samplesFolder();
    const Outcome direct = runCommandLine({words("export"), samples});
    EXPECT_EQ(direct.status, 0);
    EXPECT_TRUE(direct.errors.isEmpty());
    EXPECT_FALSE(direct.output.endsWith('\n'));
    EXPECT_EQ(
        runCommandLine({words("export"), words("-o"), output, words("--jobs"), words("1"), samples}).status,
        0);
    EXPECT_EQ(contentOf(output), direct.output);
    EXPECT_EQ(runCommandLine({words("export"), words("-d"), folder / words("each"), samples}).status, 0);
    EXPECT_EQ(QDir(folder / words("each")).entryList(QDir::Files).size(),
              QDir(samples).entryList(QDir::Files).size());
    EXPECT_FALSE(
        runCommandLine({words("export"), words("--skip-private"), samples}).output.contains("\nLocation: "));
}

TEST(CommandLine, ExportInEveryFormat)
{
    const TestFolder folder;
    const QString broken = folder / words("none.mov");
    for (const QString &format :
         {words("txt"), words("html"), words("csv"), words("xml"), words("json"), words("plist")}) {
        const QStringList call{words("export"), words("-f"), format};
        const QString tone = sample(words("tone.wav"));
        const Outcome one = runCommandLine(call + QStringList{tone});
        EXPECT_EQ(one.status, 0);
        EXPECT_EQ(runCommandLine(call + QStringList{words("-d"), folder / format, tone}).status, 0);
        EXPECT_EQ(contentOf(folder / format + words("/tone.") + format), one.output);
        // A failed file leaves nothing behind: the other one stays the only one.
        const Outcome withFailed = runCommandLine(call + QStringList{broken, tone});
        EXPECT_EQ(withFailed.status, 1);
        EXPECT_EQ(withFailed.output, one.output);
        const QString output = folder / words("all.") + format;
        EXPECT_EQ(runCommandLine(call + QStringList{words("-o"), output, broken}).status, 1);
        EXPECT_LT(contentOf(output).size(), one.output.size());
        EXPECT_EQ(
            runCommandLine(call + QStringList{words("-o"), output, tone, sample(words("movie.mp4"))}).status,
            0);
        EXPECT_GT(contentOf(output).size(), one.output.size());
    }
}

TEST(CommandLine, OutputThatCanNotBeWrittenIsAFailure)
{
    const Outcome outcome = runCommandLine(
        {words("export"), words("-o"), words("/no/such/folder/x"), sample(words("tone.wav"))});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "quorvin-cli: /no/such/folder/x: No such file or directory\n");
    for (const QString &call : {words("settings"), words("export -f json ") + sample(words("tone.wav")),
                                words("export -f plist ") + sample(words("tone.wav"))}) {
        QProcess shell;
        shell.start(words("sh"),
                    {words("-c"), test::commandLineProgram() + QStringLiteral(" %1 >/dev/full").arg(call)});
        ASSERT_TRUE(shell.waitForFinished());
        EXPECT_EQ(shell.exitCode(), 1);
        EXPECT_EQ(shell.readAllStandardError(), "quorvin-cli: standard output: No space left on device\n");
    }
}

TEST(CommandLine, LocaleOfTheUserIsNoMatter)
{
    const TestFolder folder;
    const QString path = folder.write(words("h\xe9.wav"), contentOf(sample(words("tone.wav"))));
    const Outcome utf8 = runCommandLine({words("export"), path});
    EXPECT_TRUE(utf8.output.contains("h\xc3\xa9.wav\n------\n"));
    const Outcome plain = runCommandLine({words("export"), path}, {}, words("C"));
    EXPECT_EQ(plain.output, utf8.output);
    EXPECT_TRUE(plain.errors.isEmpty());
    EXPECT_TRUE(runCommandLine({words("export"), path}, {}, words("de_DE.UTF-8")).output.contains(" um "));
}

TEST(CommandLine, SettingsOfThisRunShow)
{
    const Outcome outcome = runCommandLine({words("settings"), words("--set"), words("useSIUnits=0")});
    EXPECT_TRUE(outcome.output.startsWith(
        "terminateAppWhenAllWindowsClosed\tboolean\tfalse\tfalse\nsidebarWidth\tfloat\t160.0\t160.0\n"));
    EXPECT_TRUE(outcome.output.contains("\nuseSIUnits\tboolean\ttrue\tfalse\n"));
}

TEST(CommandLine, RawReportsComeAsTheyAre)
{
    const Outcome plain = runCommandLine({words("raw"), sample(words("tone.wav"))});
    EXPECT_TRUE(plain.output.startsWith("General\n"));
    EXPECT_TRUE(
        runCommandLine({words("raw"), words("--source"), words("mediainfo-trace"), sample(words("tone.wav"))})
            .output.contains("WAVE"));
    EXPECT_TRUE(runCommandLine({words("raw"), words("--source"), words("parameters")})
                    .output.startsWith("\nGeneral\n-----"));
    EXPECT_EQ(runCommandLine({words("raw"), words("/none")}).errors,
              "quorvin-cli: /none: No such file or directory\n");
}

TEST(CommandLine, FileThatEndsALibraryLeavesItsNeighboursWhole)
{
    const TestFolder folder;
    const QByteArray tone = contentOf(sample(words("tone.flac")));
    // A TIFF whose empty directory names itself as the next one: libmediainfo follows it for ever. The image
    // reader refuses it, since it is too short.
    const QByteArray loop("II*\0\x08\0\0\0\0\0\x08\0\0\0", 14);
    for (int i = 1; i <= 12; ++i)
        folder.write(QString::number(i) + words(".flac"), tone);
    folder.write(words("5.tif"), loop);
    const QStringList call{words("general"), words("--set"), words("readerCpuSeconds=1"), folder.path()};
    const Outcome outcome = runCommandLine(call);
    EXPECT_EQ(outcome.status, 1);
    const QByteArrayList errors = outcome.errors.split('\n');
    ASSERT_EQ(errors.size(), 3);
    EXPECT_EQ(errors[0], "quorvin-cli: " + folder.path().toUtf8() + "/5.tif: stopped: took too long");
    EXPECT_TRUE(errors[1].contains("readerCpuSeconds"));
    QByteArrayList names;
    for (const QByteArray &line : outcome.output.split('\n')) {
        if (line.endsWith(".flac"))
            names.append(line.chopped(5));
    }
    EXPECT_EQ(names.join(' '), "1 2 3 4 5 6 7 8 9 10 11 12");
}

} // namespace quorvin
