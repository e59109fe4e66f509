// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/AtomicFile.h"

#include "platform/UnfinishedFiles.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>

namespace quorvin {

using test::contentOf;
using test::TestFolder;

namespace {

constexpr uid_t kNobody = 65'534;

bool writeTo(const QString &path, const QByteArray &content,
             AtomicFile::Existing existing = AtomicFile::Existing::Replace)
{
    const auto file = AtomicFile::create(path);
    if (!file)
        return false;
    (*file)->device().write(content);
    return (*file)->commit(existing).has_value();
}

} // namespace

TEST(AtomicFile, OldFileStaysUntilTheNewOneIsComplete)
{
    const TestFolder folder;
    const QString path = folder.write(QStringLiteral("a.txt"), "old");
    {
        const auto file = AtomicFile::create(path);
        ASSERT_TRUE(file);
        (*file)->device().write("half");
        (*file)->device().flush();
        EXPECT_EQ(contentOf(path), "old");
    }
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("a.txt")});
    EXPECT_TRUE(writeTo(path, "new"));
    EXPECT_EQ(contentOf(path), "new");
}

TEST(AtomicFile, AnExitInTheMiddleLeavesNothing)
{
    const TestFolder folder;
    const auto exitInTheMiddle = [&folder] {
        UnfinishedFiles::removeOnInterrupt();
        const auto file = AtomicFile::create(folder / QStringLiteral("new"));
        std::exit(file && folder.names().size() == 1 ? 7 : 1);
    };
    EXPECT_EXIT(exitInTheMiddle(), testing::ExitedWithCode(7), "");
    EXPECT_EQ(folder.names(), QStringList());
}

TEST(AtomicFile, ReplacedFileHandsItsAttributesOn)
{
    const TestFolder folder;
    const QString path = folder.write(QStringLiteral("a.txt"));
    const QByteArray name = path.toUtf8();
    ASSERT_EQ(::chmod(name.constData(), 0640), 0);
    folder.setAttribute(path, "user.note", "kept");
    ASSERT_TRUE(writeTo(path, "new"));

    struct stat facts { };
    ASSERT_EQ(::stat(name.constData(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 07777, 0640U);
    std::array<char, 8> value{};
    EXPECT_EQ(::getxattr(name.constData(), "user.note", value.data(), value.size()), 4);
}

TEST(AtomicFile, LinkStaysAndItsTargetIsReplaced)
{
    const TestFolder folder;
    const QString path = folder.write(QStringLiteral("a.txt"));
    ASSERT_EQ(::symlink("a.txt", (folder / QStringLiteral("link")).toUtf8().constData()), 0);
    EXPECT_TRUE(writeTo(folder / QStringLiteral("link"), "new"));
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(folder.names().size(), 2);
}

TEST(AtomicFile, LinkToNothingStaysAndItsTargetIsMade)
{
    const TestFolder folder;
    const QByteArray place = folder.path().toUtf8();
    ASSERT_EQ(::mkdir((place + "/below").constData(), 0700), 0);
    ASSERT_EQ(::symlink("below/next", (place + "/first").constData()), 0);
    ASSERT_EQ(::symlink("../made.txt", (place + "/below/next").constData()), 0);
    EXPECT_TRUE(writeTo(folder / QStringLiteral("first"), "new"));
    EXPECT_EQ(contentOf(folder / QStringLiteral("made.txt")), "new");
    struct stat facts { };
    EXPECT_TRUE(::lstat((place + "/first").constData(), &facts) == 0 && S_ISLNK(facts.st_mode));
}

TEST(AtomicFile, NameThatWasTakenMeanwhileCanBeChanged)
{
    const TestFolder folder;
    const auto file = AtomicFile::create(folder / QStringLiteral("a.txt"), AtomicFile::Extent::OneOfMany);
    ASSERT_TRUE(file);
    folder.write(QStringLiteral("a.txt"), "other");
    const auto taken = (*file)->commit(AtomicFile::Existing::Keep);
    ASSERT_FALSE(taken);
    EXPECT_EQ(taken.error().code, EEXIST);
    (*file)->setName(QStringLiteral("b.txt"));
    EXPECT_TRUE((*file)->commit(AtomicFile::Existing::Keep));
    EXPECT_EQ(folder.names(), QStringList({QStringLiteral("a.txt"), QStringLiteral("b.txt")}));
    EXPECT_EQ(contentOf(folder / QStringLiteral("a.txt")), "other");
}

TEST(AtomicFile, WriteProtectedFileIsRefused)
{
    const TestFolder folder;
    const QString path = folder.write(QStringLiteral("a.txt"), "old");
    ASSERT_EQ(::chmod(path.toUtf8().constData(), 0444), 0);
    ASSERT_EQ(::chmod(folder.path().toUtf8().constData(), 0777), 0);
    const uid_t self = ::geteuid();
    // No permission stops root.
    ASSERT_EQ(::seteuid(self == 0 ? kNobody : self), 0);
    const auto file = AtomicFile::create(path);
    ASSERT_EQ(::seteuid(self), 0);
    ASSERT_FALSE(file);
    EXPECT_EQ(file.error().code, EACCES);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(folder.names().size(), 1);
}

TEST(AtomicFile, KeepNeverReplaces)
{
    const TestFolder folder;
    const QString path = folder.write(QStringLiteral("a.txt"), "old");
    EXPECT_FALSE(writeTo(path, "new", AtomicFile::Existing::Keep));
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(folder.names().size(), 1);
    EXPECT_TRUE(writeTo(folder / QStringLiteral("b.txt"), "new", AtomicFile::Existing::Keep));
}

TEST(AtomicFile, SpecialFilesAreWrittenDirectlyAndFoldersRefused)
{
    EXPECT_TRUE(writeTo(QStringLiteral("/dev/null"), "gone"));
    EXPECT_FALSE(writeTo(QStringLiteral("/dev/full"), "no room"));
    EXPECT_FALSE(writeTo(TestFolder().path(), "x"));
    EXPECT_FALSE(writeTo(QStringLiteral("/no/such/folder/a.txt"), "x"));
}

} // namespace quorvin
