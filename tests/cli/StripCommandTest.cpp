// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/CommandLine.h"
#include "support/Sweep.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

const QStringList kStrip{u"strip"_s, u"--exif"_s, u"--gps"_s, u"--iptc"_s, u"--xmp"_s};

QByteArray photoBytes()
{
    return test::contentOf(test::sample(u"photo.jpg"_s));
}

/// Runs the command so that one system call fails with EIO, or ends who makes it. Gives the exit status.
int stripWithout(long call, bool isKilled, const QString &path)
{
    QProcess process;
    process.setChildProcessModifier([=] {
        const __u32 action
            = isKilled ? __u32{SECCOMP_RET_KILL_PROCESS} : SECCOMP_RET_ERRNO | static_cast<__u32>(EIO);
        std::array<sock_filter, 4> program{
            sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, 0),
            sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<__u32>(call), 0, 1),
            sock_filter BPF_STMT(BPF_RET | BPF_K, action),
            sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        };
        const sock_fprog filter{program.size(), program.data()};
        ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
        ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter);
    });
    process.start(test::commandLineProgram(), kStrip + QStringList(path));
    process.waitForFinished(60'000);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

} // namespace

TEST(StripCommand, KeepsModeAttributesAndDates)
{
    const test::TestFolder folder;
    const QString photo = folder.write(u"one.jpg"_s, photoBytes());
    ASSERT_EQ(::chmod(photo.toUtf8().constData(), 0640), 0);
    folder.setAttribute(photo, "user.xdg.comment", "mine");
    const std::array<timespec, 2> times{timespec{1'000'000, 0}, timespec{2'000'000, 0}};
    ::utimensat(AT_FDCWD, photo.toUtf8().constData(), times.data(), 0);

    const auto outcome = test::runCommandLine(
        kStrip + QStringList{u"--keep-mtime"_s, u"--receipt"_s, folder / u"r.json"_s, photo});
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    struct stat facts { };
    ::stat(photo.toUtf8().constData(), &facts);
    EXPECT_EQ(facts.st_mode & 07777, 0640U);
    EXPECT_EQ(facts.st_mtim.tv_sec, 2'000'000);
    std::array<char, 8> value{};
    EXPECT_EQ(::getxattr(photo.toUtf8().constData(), "user.xdg.comment", value.data(), value.size()), 4);
    const QByteArray receipt = test::contentOf(folder / u"r.json"_s);
    EXPECT_TRUE(receipt.contains("Exif.GPSInfo.GPSLatitude") && receipt.contains("\"before\""))
        << receipt.toStdString();
    EXPECT_EQ(folder.names(), (QStringList{u"one.jpg"_s, u"r.json"_s}));

    const QByteArray stripped = test::contentOf(photo);
    EXPECT_LT(stripped.size(), photoBytes().size());
    const ino_t inode = facts.st_ino;
    EXPECT_TRUE(test::runCommandLine(kStrip + QStringList(photo)).output.contains("nothing to remove"));
    ::stat(photo.toUtf8().constData(), &facts);
    EXPECT_EQ(facts.st_ino, inode) << "nothing was to remove, and the file stays the one it was";
}

TEST(StripCommand, FollowsLinksAndRefusesSeveralNames)
{
    const test::TestFolder folder;
    const QString photo = folder.write(u"there/one.jpg"_s, photoBytes());
    const QString link = folder / u"link.jpg"_s;
    ASSERT_TRUE(QFile::link(photo, link));
    EXPECT_EQ(test::runCommandLine(kStrip + QStringList(link)).status, 0);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_LT(QFileInfo(photo).size(), photoBytes().size());

    const QString twice = folder.write(u"twice.jpg"_s, photoBytes());
    ASSERT_EQ(::link(twice.toUtf8().constData(), (folder / u"other.jpg"_s).toUtf8().constData()), 0);
    const auto refused = test::runCommandLine(kStrip + QStringList(twice));
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.errors.contains("several names")) << refused.errors.toStdString();
    EXPECT_EQ(test::contentOf(twice), photoBytes());
    EXPECT_EQ(test::runCommandLine(kStrip + QStringList{u"--dry-run"_s, twice}).status, 1);
    EXPECT_EQ(test::runCommandLine(kStrip + QStringList{u"--allow-hard-links"_s, twice}).status, 0);
    EXPECT_LT(QFileInfo(twice).size(), photoBytes().size());
    EXPECT_EQ(test::contentOf(folder / u"other.jpg"_s), photoBytes()) << "the other name keeps the file";
}

TEST(StripCommand, WritesCopiesAsInTheirFoldersAndPlansWithoutWriting)
{
    const test::TestFolder folder;
    folder.write(u"in/a/one.jpg"_s, photoBytes());
    const QString broken = folder.write(u"in/broken.jpg"_s, "no picture");
    const QString plan = QString::fromUtf8(
        test::runCommandLine(kStrip + QStringList{u"--dry-run"_s, folder / u"in"_s}).output);
    EXPECT_TRUE(plan.contains(u"would go"_s) && plan.contains(u"Exif.Image.Orientation stays"_s))
        << plan.toStdString();
    EXPECT_EQ(test::contentOf(folder / u"in/a/one.jpg"_s), photoBytes());

    const QStringList filter{u"--dry-run"_s, u"--filter"_s, u"[Exif/Make] = 'nobody'"_s, folder / u"in/a"_s};
    const auto narrowed = test::runCommandLine(kStrip + filter);
    EXPECT_TRUE(narrowed.output.isEmpty()) << narrowed.output.toStdString() << narrowed.errors.toStdString();

    for (int run = 0; run < 2; ++run) {
        const auto outcome = test::runCommandLine(
            kStrip + QStringList{u"--output-dir"_s, folder / u"out"_s, folder / u"in"_s});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_TRUE(outcome.errors.contains("broken.jpg")) << outcome.errors.toStdString();
    }
    EXPECT_EQ(test::contentOf(folder / u"in/a/one.jpg"_s), photoBytes());
    EXPECT_EQ(QDir(folder / u"out/a"_s).entryList(QDir::Files | QDir::Hidden),
              (QStringList{u"one (1).jpg"_s, u"one.jpg"_s}))
        << "neither run writes over the other's";
    EXPECT_EQ(test::contentOf(broken), "no picture");
    EXPECT_EQ(test::runCommandLine({u"strip"_s, broken}).status, 2);
}

TEST(StripCommand, RewritesAFileOfManyLinksOnceAndWritesEachCopy)
{
    const test::TestFolder folder;
    QStringList given(folder.write(u"file/one.jpg"_s, photoBytes()));
    for (int i = 0; i < 5; ++i) {
        given.append(folder.write(u"other/%1.jpg"_s.arg(i), photoBytes()));
        const QString link = folder / u"%1/one.jpg"_s.arg(i);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(link).path()) && QFile::link(given.first(), link));
        given.append(link);
    }
    const auto copied = test::runCommandLine(kStrip + QStringList{u"-d"_s, folder / u"out"_s} + given);
    EXPECT_EQ(copied.status, 0) << copied.errors.toStdString();
    EXPECT_EQ(QDir(folder / u"out"_s).entryList({u"one*.jpg"_s}).size(), 6) << "no copy replaces another";

    const auto outcome = test::runCommandLine(kStrip + given);
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_EQ(outcome.output.count(") removed\n"), 6) << outcome.output.toStdString();
    EXPECT_EQ(outcome.output.count(": nothing to remove\n"), 5) << "the file of the links is clean by then";
    const QByteArrayList told = outcome.output.trimmed().split('\n');
    const QByteArrayList listed
        = test::runCommandLine(QStringList(u"list"_s) + given).output.trimmed().split('\n');
    ASSERT_EQ(told.size(), listed.size());
    for (qsizetype i = 0; i < told.size(); ++i)
        EXPECT_TRUE(told[i].startsWith(listed[i].split('\t').at(1) + ": ")) << told[i].toStdString();
}

TEST(StripCommand, LeavesTheOldFileOrTheNewOneWhateverFails)
{
    constexpr std::array kCalls{SYS_mkdir,  SYS_flock,     SYS_ioctl,      SYS_pwrite64,
                                SYS_rename, SYS_fchmod,    SYS_fchown,     SYS_fsetxattr,
                                SYS_fsync,  SYS_ftruncate, SYS_listxattr,  SYS_pread64,
                                SYS_rmdir,  SYS_unlink,    SYS_getdents64, SYS_unlinkat};
    const test::TestFolder folder;
    const QString photo = folder.write(u"one.jpg"_s, photoBytes());
    ASSERT_EQ(test::runCommandLine(kStrip + QStringList(photo)).status, 0);
    const QByteArray stripped = test::contentOf(photo);
    constexpr auto kStep = static_cast<std::size_t>(test::stepOfSweep(2));
    for (const bool isKilled : {false, true}) {
        for (std::size_t i = isKilled ? kStep - 1 : 0; i < kCalls.size(); i += kStep) {
            const long call = kCalls.at(i);
            folder.write(u"one.jpg"_s, photoBytes());
            const int status = stripWithout(call, isKilled, photo);
            const QByteArray left = test::contentOf(photo);
            EXPECT_TRUE(left == stripped || (status != 0 && left == photoBytes()))
                << "call " << call << (isKilled ? " kills" : " fails") << ", status " << status;
            // What a killed run has left goes with the next one.
            folder.write(u"one.jpg"_s, photoBytes());
            EXPECT_EQ(test::runCommandLine(kStrip + QStringList(photo)).status, 0);
            EXPECT_EQ(folder.names(), QStringList(u"one.jpg"_s)) << call;
        }
    }
}

} // namespace quorvin
