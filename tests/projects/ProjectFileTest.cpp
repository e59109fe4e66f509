// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NativePath.h"
#include "projects/ProjectPaths.h"
#include "projects/ProjectReader.h"
#include "projects/ProjectWriter.h"
#include "support/TestFolder.h"

#include <QBuffer>
#include <QFile>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::TestFolder;

namespace {

/// With a value in every member, and names that are no text.
Project fullProject(const QString &folder)
{
    const QString bytes = decodePath("/elsewhere/\xff\xfe b\xe4r.mp4");
    Project project;
    KeptFacts facts{66'210, FileTime{-2, 5}, FileTime{1'763'801'423, 999'999'999}, QString(40, u'a')};
    project.files = {{folder + u"/in/one#1?%41:2 \"ü\".mp4"_s, 2, facts},
                     {folder + u"/in/two\nlines.wav"_s, 1, {.size = 0}},
                     {u"/"_s + lastPathComponent(folder) + u"/three"_s, 1, {}},
                     {bytes, 2, {}}};
    project.folders = {{folder + u"/in"_s, {u"notes:1.txt"_s, decodePath("\x80")}}, {folder, {}}};
    project.tab = u"extended"_s;
    project.filter = {u"[Video/Width] >= 1920"_s, u"ü"_s, u"\"x\""_s, true};
    project.watched = {{u"Video"_s, 2, u"Width"_s, u"Breite"_s}, {u"General"_s, 0, u"k"_s, u""_s}};
    project.rules = {{u"wide"_s, u"[Video/Width] > 1"_s}, {u"no rule at all"_s, u"((("_s}};
    project.comparison = {QStringList{bytes, project.files[0].path}, u"differing"_s};
    return project;
}

QString reasonFor(const QByteArray &json)
{
    const auto project = projectFromJson(json, u"/home/anna"_s);
    return project ? u"taken"_s : project.error().description;
}

QByteArray withMembers(const QByteArray &members)
{
    return R"({"format": "quorvinproj", "version": 1, )" + members + "}";
}

QByteArray fileAt(const QByteArray &url)
{
    return withMembers(R"("files": [{"url": ")" + url + R"("}])");
}

} // namespace

TEST(Projects, WrittenAndReadBackAreEqual)
{
    const TestFolder folder;
    const QString path = folder / u"all.quorvinproj"_s;
    const Project project = fullProject(folder.path());
    ASSERT_TRUE(saveProject(project, path));
    const auto back = readProject(path);
    ASSERT_TRUE(back) << back.error().description.toStdString();
    EXPECT_EQ(*back, project);
    // Its own facts take part in it; a project of nothing is one, too.
    ASSERT_TRUE(saveProject({}, path));
    EXPECT_EQ(readProject(path).value_or(project), Project());
}

TEST(Projects, AddressesFollowTheProject)
{
    const TestFolder folder;
    folder.write(u"here/clips/one.mp4"_s);
    ASSERT_TRUE(saveProject({.files = {{folder / u"here/clips/one.mp4"_s, 1, {}},
                                       {folder / u"two.mp4"_s, 1, {}},
                                       {u"/nowhere/three.mp4"_s, 1, {}}}},
                            folder / u"here/p.quorvinproj"_s));
    ASSERT_TRUE(QFile::rename(folder / u"here"_s, folder / u"there"_s));
    // By a link it is the same project, with the same folder.
    ASSERT_TRUE(QFile::link(folder / u"there/p.quorvinproj"_s, folder / u"link.quorvinproj"_s));
    for (const QString &name : {u"there/p.quorvinproj"_s, u"link.quorvinproj"_s}) {
        const auto moved = readProject(folder / name);
        ASSERT_TRUE(moved);
        EXPECT_EQ(moved->files[0].path, folder / u"there/clips/one.mp4"_s);
        EXPECT_EQ(moved->files[1].path, folder / u"two.mp4"_s);
        EXPECT_EQ(moved->files[2].path, u"/nowhere/three.mp4"_s);
    }
}

TEST(Projects, OnlyFilesOfThisMachineAreTaken)
{
    const auto pathOf
        = [](const QByteArray &url) { return pathOfProjectUrl(url, u"/home/anna"_s).value_or(u"refused"_s); };
    EXPECT_EQ(pathOf("a/../../b.mp4"), u"/home/b.mp4"_s);
    EXPECT_EQ(pathOf("../../../../etc/x"), u"/etc/x"_s);
    EXPECT_EQ(pathOf("FILE://localhost/a%20b"), u"/a b"_s);
    for (const char *url : {"", "/etc/passwd", "//host/share", "%2Fetc/passwd", "http://host/x", "smb:x",
                            "file://elsewhere.example/x", "file:x", "file:", "a%00b", "file:///a%00b"})
        EXPECT_EQ(pathOf(url), u"refused"_s) << url;
    for (const char *name : {"..", ".", "", "a%2Fb", "a%00"})
        EXPECT_FALSE(nameFromEscaped(name)) << name;
    // What stands in the document is refused by its line.
    EXPECT_EQ(reasonFor("\n" + fileAt("http://host/x")),
              u"the project is damaged: line 2: \"files[].url\": it is not of a file on this machine"_s);
}

TEST(Projects, OthersAreToldFromDamagedAndNewerOnes)
{
    const QString foreign = u"this is no project of Quorvin"_s;
    for (const char *json : {"", "[]", "7 ", "\"quorvinproj\"", "{}", "no json", "{\"version\": 1}",
                             R"({"format": "other", "version": 9})", "[[[[", "\xef\xbb\xbf{}"})
        EXPECT_EQ(reasonFor(json), foreign) << json;
    const QString newer = u"the project was written by a newer Quorvin"_s;
    EXPECT_EQ(reasonFor(R"({"format": "quorvinproj", "version": 2, "files": 7})"), newer);
    EXPECT_EQ(reasonFor(R"({"format": "quorvinproj", "version": 99999999999999999999})"), newer);

    const QByteArray whole = withMembers("\n\"tab\": \"extended\"\n");
    EXPECT_EQ(reasonFor(whole), u"taken"_s);
    EXPECT_EQ(reasonFor(whole.chopped(2)), u"the project is damaged: line 2: it ends too early"_s);
    EXPECT_TRUE(reasonFor(whole + "x").startsWith(u"the project is damaged: line 3: "_s));
    EXPECT_TRUE(reasonFor(withMembers("\n\n!")).startsWith(u"the project is damaged: line 3: "_s));
    EXPECT_EQ(reasonFor(R"({"format": "quorvinproj"})"),
              u"the project is damaged: line 1: it tells no version"_s);
}

TEST(Projects, WrongTypesAndValuesAreDamage)
{
    for (const char *members : {R"("files": 7)",
                                R"("files": {})",
                                R"("files": ["one.mp4"])",
                                R"("files": [[]])",
                                R"("files": [null])",
                                R"("files": [{}])",
                                R"("files": [{"url": 7}])",
                                R"("files": [{"url": {}}])",
                                R"("files": [{"url": "a", "size": -1}])",
                                R"("files": [{"url": "a", "size": 1.5}])",
                                R"("files": [{"url": "a", "size": "1"}])",
                                R"("files": [{"url": "a", "shown": 0}])",
                                R"("files": [{"url": "a", "modified": "yesterday"}])",
                                R"("files": [{"url": "a", "modified": "1.-00000001"}])",
                                R"("files": [{"url": "a", "sha1": "A"}])",
                                R"("folders": [{"others": ["a"]}])",
                                R"("folders": [{"url": ".", "others": [1]}])",
                                R"("folders": [{"url": ".", "others": ["a/b"]}])",
                                R"("tab": true)",
                                R"("filter": [])",
                                R"("filter": {"hideUnknown": 1})",
                                R"("watched": [{"stream": -1}])",
                                R"("rules": [{"name": "a"}])",
                                R"("comparison": {"columns": ["http://host/x"]})",
                                R"("version": 0)",
                                R"("version": "1")"})
        EXPECT_TRUE(reasonFor(withMembers(members)).startsWith(u"the project is damaged: line 1: "_s))
            << members;
}

TEST(Projects, WhatIsNotKnownIsPassedOver)
{
    const auto project = projectFromJson(
        withMembers(R"("later": {"files": [{"url": 7}], "deep": [[[[1, null, {"a": -1e9}]]]]},
            "files[].url": 7, "filter.rule": 7, "files": [{"url": "a", "later": [{"url": 7}]}, {"url": "b"}])"),
        u"/x"_s);
    ASSERT_TRUE(project) << project.error().description.toStdString();
    EXPECT_EQ(*project, (Project{.files = {{u"/x/a"_s, 1, {}}, {u"/x/b"_s, 1, {}}}}));
}

TEST(Projects, AreBoundedInDepthNumberAndSize)
{
    const TestFolder folder;
    EXPECT_TRUE(reasonFor(withMembers(R"("later": )" + QByteArray(100'000, '[')))
                    .contains(u"depth"_s, Qt::CaseInsensitive));
    QByteArray names = R"("folders": [{"url": ".", "others": [)";
    for (std::size_t i = 0; i <= kMostProjectEntries; ++i)
        names += R"("a",)";
    EXPECT_TRUE(reasonFor(withMembers(names)).endsWith(u"there are too many entries"_s));
    QFile huge(folder / u"huge.quorvinproj"_s);
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(kMostProjectBytes + 1));
    const auto read = readProject(huge.fileName());
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().description, u"the project is larger than 64 MiB"_s);
    // Nor is one written that could not be read again; what stood there stays.
    const QString path = folder.write(u"old.quorvinproj"_s, "old");
    EXPECT_FALSE(saveProject({.filter = {.rule = QString(kMostProjectBytes, u'r')}}, path));
    EXPECT_EQ(test::contentOf(path), "old");
}

TEST(Projects, WhatCannotBeReadSaysWhy)
{
    const TestFolder folder;
    EXPECT_EQ(readProject(folder / u"none.quorvinproj"_s).error().description,
              u"No such file or directory"_s);
    EXPECT_FALSE(readProject(folder.path()));
    EXPECT_TRUE(isProjectPath(u"/a/b.QuorvinProj"_s));
    EXPECT_FALSE(isProjectPath(u"/a.quorvinproj/b"_s));
    EXPECT_EQ((ProjectFile{u"/a/b/c.mp4"_s, 2, {}}.shownPath()), u"b/c.mp4"_s);
    EXPECT_EQ((ProjectFile{u"/a/b/c.mp4"_s, 9, {}}.shownPath()), u"a/b/c.mp4"_s);
}

} // namespace quorvin
