// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NativePath.h"
#include "projects/ProjectReader.h"
#include "support/CommandLine.h"
#include "support/TestFolder.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::contentOf;
using test::Outcome;
using test::runCommandLine;
using test::sample;
using test::TestFolder;

namespace {

QByteArray lineOf(const QByteArray &word, const QString &path, char end = '\n')
{
    return word + '\t' + encodePath(path) + end;
}

} // namespace

TEST(ProjectCommand, ProjectStandsForItsFilesInItsOrder)
{
    const TestFolder folder;
    const QByteArray tone = contentOf(sample(u"tone.wav"_s));
    folder.write(u"sub/b.wav"_s, tone);
    folder.write(u"a.wav"_s, tone);
    const QString path
        = folder.write(u"p.QuorvinProj"_s, R"({"format": "quorvinproj", "version": 1, "files": [
        {"url": "sub/b.wav", "shown": 2}, {"url": "gone.wav"}, {"url": "a.wav"}]})");
    const Outcome listed = runCommandLine({u"list"_s, path, sample(u"movie.mp4"_s)});
    EXPECT_EQ(listed.status, 1);
    EXPECT_EQ(listed.output,
              lineOf("movie.mp4", sample(u"movie.mp4"_s)) + lineOf("sub/b.wav", folder / u"sub/b.wav"_s)
                  + lineOf("a.wav", folder / u"a.wav"_s));
    EXPECT_EQ(listed.errors,
              "quorvin-cli: " + encodePath(folder / u"gone.wav"_s) + ": No such file or directory\n");
    // Guarded readers may read what the project names, and nobody else's place is lost.
    const Outcome general = runCommandLine({u"general"_s, path});
    EXPECT_EQ(general.status, 1);
    EXPECT_TRUE(general.output.startsWith("sub/b.wav\n"));
    EXPECT_TRUE(general.output.contains("\na.wav\n"));
    EXPECT_EQ(general.errors.count('\n'), 1);
}

TEST(ProjectCommand, DamagedProjectCostsItsLineAlone)
{
    const TestFolder folder;
    const QString damaged = folder.write(u"p.quorvinproj"_s, R"({"format": "quorvinproj",)");
    const Outcome listed = runCommandLine({u"list"_s, damaged, sample(u"tone.wav"_s)});
    EXPECT_EQ(listed.status, 1);
    EXPECT_EQ(listed.output, lineOf("tone.wav", sample(u"tone.wav"_s)));
    EXPECT_EQ(listed.errors,
              "quorvin-cli: " + encodePath(damaged)
                  + ": the project is damaged: line 1: it ends too early\n");
    EXPECT_EQ(contentOf(damaged), R"({"format": "quorvinproj",)");
}

TEST(ProjectCommand, SavedProjectHasWhatIsListed)
{
    const TestFolder folder;
    const QString tone = folder.write(u"in/tone.wav"_s, contentOf(sample(u"tone.wav"_s)));
    folder.write(u"in/notes.txt"_s, "text");
    const QString path = folder / u"p.quorvinproj"_s;
    const Outcome saved
        = runCommandLine({u"list"_s, u"--filter"_s, u"fileType = 'Audio'"_s, u"--save-project"_s, path,
                          u"--set"_s, u"computeFileHashes=true"_s, folder / u"in"_s});
    EXPECT_EQ(saved.status, 0);
    EXPECT_EQ(saved.output, lineOf("tone.wav", tone));
    const auto project = readProject(path);
    ASSERT_TRUE(project);
    ASSERT_EQ(project->files.size(), 1U);
    EXPECT_EQ(project->files[0].path, tone);
    EXPECT_EQ(project->files[0].facts.size, QFile(tone).size());
    EXPECT_EQ(project->files[0].facts.sha1.size(), 40);
    EXPECT_EQ(project->filter.rule, u"fileType = 'Audio'"_s);
    EXPECT_EQ(project->folders[0].others, QStringList{u"notes.txt"_s});
}

TEST(ProjectCommand, SavedProjectIsNoneOfTheInputs)
{
    const TestFolder folder;
    const QString tone = sample(u"tone.wav"_s);
    const QString path = folder / u"p.quorvinproj"_s;
    ASSERT_EQ(runCommandLine({u"list"_s, u"--save-project"_s, path, tone}).status, 0);
    const QByteArray before = contentOf(path);
    for (const QString &input : {path, folder.path()}) {
        const Outcome refused = runCommandLine({u"list"_s, u"--save-project"_s, path, input});
        EXPECT_EQ(refused.status, 2);
        EXPECT_TRUE(refused.errors.contains("is one of the files to read\n"));
        EXPECT_EQ(contentOf(path), before);
    }
    for (const QStringList &wrong :
         {QStringList{u"--save-project"_s, folder / u"p.txt"_s, tone},
          QStringList{u"--changed"_s, path, u"--failed"_s}, QStringList{u"--changed"_s, path, tone}})
        EXPECT_EQ(runCommandLine(QStringList{u"list"_s} + wrong).status, 2);
}

TEST(ProjectCommand, ChangesAreLinesAndAStatus)
{
    const TestFolder folder;
    for (const QString &name : {u"in/a"_s, u"in/b"_s, u"in/c"_s})
        folder.write(name, "12345");
    const QString path = folder / u"p.quorvinproj"_s;
    ASSERT_EQ(runCommandLine({u"list"_s, u"--save-project"_s, path, folder / u"in"_s}).status, 0);
    const Outcome same = runCommandLine({u"list"_s, u"--changed"_s, path});
    EXPECT_EQ(same.status, 0);
    EXPECT_TRUE(same.output.isEmpty() && same.errors.isEmpty());

    folder.write(u"in/b"_s, "123456");
    ASSERT_TRUE(QFile::remove(folder / u"in/c"_s));
    folder.write(u"in/d\n"_s);
    const Outcome changed = runCommandLine({u"list"_s, u"-0"_s, u"--changed"_s, path});
    EXPECT_EQ(changed.status, 3);
    EXPECT_EQ(changed.output,
              lineOf("changed", folder / u"in/b"_s, '\0') + lineOf("vanished", folder / u"in/c"_s, '\0')
                  + lineOf("new", folder / u"in/d\n"_s, '\0'));
    const Outcome none = runCommandLine({u"list"_s, u"--changed"_s, folder / u"none.quorvinproj"_s});
    EXPECT_EQ(none.status, 1);
    EXPECT_TRUE(none.errors.endsWith(": No such file or directory\n"));
}

} // namespace quorvin
