// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/InProcessRunner.h"
#include "process/ReaderRunner.h"
#include "process/RecordBytes.h"
#include "support/TestFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

/// A TIFF whose one directory has the description alone, and a pixel's width and height.
QByteArray tiffWithDescription(quint32 length)
{
    QByteArray file("II*\0\x08\0\0\0\3\0", 10);
    const auto add = [&](quint16 tag, quint16 type, quint32 count, quint32 value) {
        file.append(reinterpret_cast<const char *>(&tag), 2).append(reinterpret_cast<const char *>(&type), 2);
        file.append(reinterpret_cast<const char *>(&count), 4)
            .append(reinterpret_cast<const char *>(&value), 4);
    };
    add(0x100, 3, 1, 1);
    add(0x101, 3, 1, 1);
    add(0x10e, 2, length, 50);
    return file.append(4, '\0').append(length - 1, 'x').append(1, '\0');
}

} // namespace

TEST(Jobs, FileLargerThanTheMemoryIsReadAsAnyOther)
{
    const test::TestFolder folder;
    const QString path = folder.write(QStringLiteral("large.tif"), tiffWithDescription(10));
    // Past what is read it takes no room on the disk.
    ASSERT_TRUE(QFile::resize(path, qint64{3} << 30));
    const auto result = makeReaderRunner()->run({RecordRequest{path, {}}, {}});
    ASSERT_TRUE(result);
    EXPECT_TRUE(std::get<QuorvinDataPtr>(*result)->isImage());
}

TEST(Jobs, RecordWithoutMeasureFailsAlone)
{
    const test::TestFolder folder;
    const auto reader = makeReaderRunner();
    const auto outcome = [&](const QString &path) {
        const auto result = reader->run({RecordRequest{path, {}}, {}});
        return result ? QStringLiteral("well") : result.error().description;
    };
    EXPECT_EQ(outcome(test::sample(QStringLiteral("photo.jpg"))), QStringLiteral("well"));
    EXPECT_EQ(outcome(folder.write(QStringLiteral("a.tif"), tiffWithDescription(17 << 20))),
              QStringLiteral("there is too much to tell of it"));
    EXPECT_EQ(outcome(test::sample(QStringLiteral("photo.jpg"))), QStringLiteral("well"));
}

TEST(Jobs, ReaderReadsAsThisProcessDoes)
{
    const auto reader = makeReaderRunner();
    const auto inProcess = makeInProcessRunner();
    const QDir samples(test::samplesFolder());
    for (const QString &name : samples.entryList(QDir::Files)) {
        const Job job{RecordRequest{samples.filePath(name), {}}, {}};
        const JobResult there = reader->run(job);
        const JobResult here = inProcess->run(job);
        ASSERT_TRUE(there && here) << name.toStdString();
        EXPECT_TRUE(std::get<QuorvinDataPtr>(*there)->contents()
                    == std::get<QuorvinDataPtr>(*here)->contents())
            << name.toStdString();
    }
    const auto none = reader->run({RecordRequest{QStringLiteral("/none"), {}}, {}});
    ASSERT_FALSE(none);
    EXPECT_EQ(none.error().description, QStringLiteral("No such file or directory"));
}

TEST(Jobs, FirstRunOfAProcessFindsItsLibrariesSetUp)
{
    const QString path = test::sample(QStringLiteral("two-covers.mp3"));
    const auto byReader = makeReaderRunner()->run({RecordRequest{path, {}}, {}});
    ASSERT_TRUE(byReader);
    QProcess fresh;
    fresh.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--read"), path});
    ASSERT_TRUE(fresh.waitForFinished());
    EXPECT_EQ(fresh.readAllStandardOutput(),
              RecordEncoder().encode(std::get<QuorvinDataPtr>(*byReader)->contents()));
}

TEST(Jobs, LinksOutOfTheRootsAreFollowedAndNothingElse)
{
    const test::TestFolder list;
    const test::TestFolder elsewhere;
    const QByteArray sound = test::contentOf(test::sample(QStringLiteral("tone.wav")));
    elsewhere.write(QStringLiteral("folder/sub/a.wav"), sound);
    elsewhere.write(QStringLiteral("folder/b.wav"), sound);
    const QString secret = elsewhere.write(QStringLiteral("secret.wav"), sound);
    ASSERT_TRUE(QFile::link(elsewhere / QStringLiteral("folder"), list / QStringLiteral("linked")));
    ASSERT_TRUE(QFile::link(list / QStringLiteral("linked"), list / QStringLiteral("again")));
    ASSERT_TRUE(QFile::link(secret, list / QStringLiteral("c.wav")));
    const auto roots = std::make_shared<RootSet>(QStringList{list.path()});
    const auto reader = makeReaderRunner(roots);
    const auto isRead = [&](const QString &path) { return bool(reader->run({RecordRequest{path, {}}, {}})); };
    EXPECT_TRUE(isRead(list / QStringLiteral("again/sub/a.wav")));
    // The link brings all that it leads to, so the rest needs no further reader; but not what is beside.
    EXPECT_TRUE(roots->roots().cover(elsewhere / QStringLiteral("folder/b.wav")));
    EXPECT_TRUE(roots->roots().paths().contains(elsewhere / QStringLiteral("folder")));
    EXPECT_TRUE(isRead(list / QStringLiteral("linked/b.wav")));
    EXPECT_FALSE(roots->roots().cover(secret));
    EXPECT_TRUE(isRead(list / QStringLiteral("c.wav")));
    EXPECT_TRUE(roots->roots().paths().contains(secret));
    EXPECT_FALSE(roots->roots().cover(elsewhere / QStringLiteral("x.wav")));
    EXPECT_TRUE(isRead(test::sample(QStringLiteral("tone.wav"))));
}

TEST(Jobs, ReportLeavesTheNextOneAlone)
{
    const auto reader = makeReaderRunner();
    const auto report = [&](const char *source) {
        const QString path = test::sample(QStringLiteral("tone.wav"));
        return std::get<Report>(*reader->run({ReportRequest{path, QLatin1String(source)}, {}})).text;
    };
    const QString before = report("mediainfo");
    EXPECT_NE(report("mediainfo-trace"), before);
    EXPECT_EQ(report("mediainfo"), before);
}

} // namespace quorvin
