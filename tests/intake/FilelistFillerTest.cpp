// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/FilelistFiller.h"

#include "platform/NativePath.h"
#include "support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace quorvin {

namespace {

QString listed(const QStringList &paths)
{
    QStringList names;
    const FilelistFiller filler = FilelistFiller::fillerWithSourceArray(paths);
    for (const auto &item : filler.filelist())
        names.append(item->prefixedPath());
    return names.join(u'|');
}

} // namespace

TEST(FilelistFiller, OnlyFolderGivesItsNameToNothing)
{
    const test::TestFolder folder;
    for (const char *name : {"10.jpg", "2.jpg", "1.jpg", ".DS_Store", ".hidden", "App.app/in/side"})
        folder.write(QLatin1String(name));
    EXPECT_EQ(listed({folder.path()}), QStringLiteral(".hidden|1.jpg|2.jpg|10.jpg|App.app/in/side"));
    EXPECT_EQ(listed({folder / QStringLiteral("App.app"), folder / QStringLiteral("2.jpg")}),
              QStringLiteral("2.jpg|App.app/in/side"));
    EXPECT_EQ(listed({folder / QStringLiteral("1.jpg"), folder / QStringLiteral("1.jpg")}),
              QStringLiteral("1.jpg|1.jpg"));
    EXPECT_EQ(listed({folder / QStringLiteral("none.mov")}), QStringLiteral("none.mov"));
    EXPECT_EQ(listed({}), QString());
}

TEST(FilelistFiller, LinksAreFollowedButNoFolderIntoItself)
{
    const test::TestFolder folder;
    folder.write(QStringLiteral("a/b/file"));
    folder.write(QStringLiteral("c/other"));
    ASSERT_EQ(::symlink("../..", (folder / QStringLiteral("a/b/up")).toUtf8().constData()), 0);
    ASSERT_EQ(::symlink("../c", (folder / QStringLiteral("a/side")).toUtf8().constData()), 0);
    ASSERT_EQ(::symlink("nowhere", (folder / QStringLiteral("broken")).toUtf8().constData()), 0);
    EXPECT_EQ(listed({folder.path()}), QStringLiteral("a/b/file|a/side/other|broken|c/other"));
}

TEST(FilelistFiller, FoldersThatLinkToEachOtherDoNotMultiply)
{
    const test::TestFolder folder;
    constexpr int kFolders = 6;
    for (int i = 0; i < kFolders; ++i)
        folder.write(QStringLiteral("%1/sub/file").arg(i));
    for (int from = 0; from < kFolders; ++from) {
        for (int to = 0; to < kFolders; ++to) {
            const QString link = folder / QStringLiteral("%1/to%2").arg(from).arg(to);
            const QByteArray target = QByteArray("../") + QByteArray::number(to);
            ASSERT_EQ(::symlink(target.constData(), link.toUtf8().constData()), 0);
        }
    }
    EXPECT_EQ(listed({folder.path()}).count(u'|') + 1, kFolders);
    // From outside each linked folder is still walked once.
    const test::TestFolder outside;
    ASSERT_EQ(
        ::symlink(folder.path().toUtf8().constData(), (outside / QStringLiteral("l")).toUtf8().constData()),
        0);
    EXPECT_EQ(listed({outside.path()}).count(u'|') + 1, kFolders);
}

TEST(FilelistFiller, AnEmptyPathIsAProblem)
{
    const FilelistFiller filler = FilelistFiller::fillerWithSourceArray({QString()});
    EXPECT_TRUE(filler.filelist().empty());
    ASSERT_EQ(filler.problems().size(), 1U);
    EXPECT_FALSE(filler.problems().front().reason.isEmpty());
}

TEST(FilelistFiller, EveryKindOfNameAndFileHasItsItem)
{
    const test::TestFolder folder;
    folder.write(QStringLiteral("two\nlines"));
    folder.write(decodePath("odd\xff"));
    ASSERT_EQ(::mkfifo((folder / QStringLiteral("fifo")).toUtf8().constData(), 0600), 0);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const QByteArray socketPath = (folder / QStringLiteral("socket")).toUtf8();
    std::copy(socketPath.begin(), socketPath.end(), address.sun_path);
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_EQ(::bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ::close(listener);

    QByteArrayList names;
    const FilelistFiller filler = FilelistFiller::fillerWithSourceArray({folder.path()});
    for (const auto &item : filler.filelist())
        names.append(encodePath(item->prefixedPath()));
    EXPECT_EQ(names.join('|'), "fifo|odd\xff|socket|two\nlines");
}

TEST(FilelistFiller, FolderThatCanNotBeListedIsAProblem)
{
    const test::TestFolder folder;
    folder.write(QStringLiteral("good/file"));
    // Deeper than a path may be long: made step by step, since no single path reaches it.
    const QString step(200, u'd');
    const QByteArray before = QDir::currentPath().toUtf8();
    ASSERT_EQ(::chdir(folder.path().toUtf8().constData()), 0);
    for (int i = 0; i < 25; ++i) {
        ASSERT_EQ(::mkdir(step.toUtf8().constData(), 0700), 0);
        ASSERT_EQ(::chdir(step.toUtf8().constData()), 0);
    }
    ASSERT_EQ(::chdir(before.constData()), 0);
    const FilelistFiller filler = FilelistFiller::fillerWithSourceArray({folder.path()});
    EXPECT_EQ(filler.filelist().size(), 1U);
    ASSERT_EQ(filler.problems().size(), 1U);
    EXPECT_EQ(filler.problems().front().reason, QStringLiteral("File name too long"));
}

TEST(FilelistFiller, StopEndsTheWalk)
{
    const test::TestFolder folder;
    folder.write(QStringLiteral("a/file"));
    std::stop_source source;
    const auto stopAtOnce = [&](std::size_t) { source.request_stop(); };
    EXPECT_TRUE(FilelistFiller::fillerWithSourceArray({folder.path()}, source.get_token(), stopAtOnce)
                    .filelist()
                    .empty());
}

} // namespace quorvin
