// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/Captures.h"
#include "filefacts/Durations.h"
#include "filefacts/FileHash.h"
#include "filefacts/Paths.h"
#include "filefacts/Sizes.h"
#include "platform/NativePath.h"
#include "platform/RegularFile.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <limits>
#include <vector>

namespace quorvin {

using namespace Utilities;

TEST(Durations, RoundUp)
{
    QStringList texts;
    for (const qint64 duration : {-5, 0, 1, 1000, 1001, 3'661'500, 360'000'000})
        texts.append(formatDurationUpToSeconds(duration));
    EXPECT_EQ(texts.join(u' '), QStringLiteral("  00:00:01 00:00:01 00:00:02 01:01:02 100:00:00"));
    EXPECT_EQ(formatDurationUpToSeconds(std::numeric_limits<qint64>::max()).right(6),
              QStringLiteral(":12:56"));
    EXPECT_EQ(leadingInteger(u" -12.5 ms"), -12);
    EXPECT_EQ(leadingInteger(u"none"), 0);
    EXPECT_EQ(leadingInteger(u"99999999999999999999"), std::numeric_limits<qint64>::max());
}

TEST(Sizes, BordersOfBothRules)
{
    struct Row {
        qint64 bytes;
        const char *decimal;
        const char *binary;
    };
    for (const Row &row : {Row{0, "0 bytes", "0 bytes"},
                           {999, "999 bytes", "999 bytes"},
                           {1000, "1.00 KB", "1000 bytes"},
                           {1024, "1.02 KB", "1.00 KiB"},
                           {9'999, "10.00 KB", "9.76 KiB"},
                           {999'999, "1000 KB", "977 KiB"},
                           {1'125'000, "1.12 MB", "1.07 MiB"},
                           {1'500'000, "1.50 MB", "1.43 MiB"},
                           {10'000'000, "10.0 MB", "9.54 MiB"},
                           {100'000'000, "100 MB", "95.4 MiB"},
                           {999'999'999'999, "1000 GB", "931 GiB"},
                           {1'000'000'000'000, "1.00 TB", "931 GiB"},
                           {1'099'511'627'776, "1.10 TB", "1.00 TiB"},
                           {-1'500'000'000'000, "-1.50 TB", "-1.36 TiB"}}) {
        EXPECT_EQ(filesizeToMacHumanString(row.bytes), QLatin1String(row.decimal));
        EXPECT_EQ(filesizeToBase2HumanString(row.bytes), QLatin1String(row.binary));
    }
    EXPECT_EQ(filesizeToMacHumanString(std::numeric_limits<qint64>::max()), QStringLiteral("9223372 TB"));
}

TEST(Paths, UniqueNamesCountUpFromTheExtension)
{
    const test::TestFolder folder;
    EXPECT_EQ(uniqueFilename(folder / QStringLiteral("a.txt")), folder / QStringLiteral("a.txt"));
    folder.write(QStringLiteral("a.txt"));
    folder.write(QStringLiteral("a (1).txt"));
    EXPECT_EQ(uniqueFilename(folder / QStringLiteral("a.txt")), folder / QStringLiteral("a (2).txt"));
    folder.write(QStringLiteral(".hidden"));
    EXPECT_EQ(uniqueFilename(folder / QStringLiteral(".hidden")), folder / QStringLiteral(".hidden (1)"));
    EXPECT_EQ(createUniqueFolder(folder / QStringLiteral("deep/er")), folder / QStringLiteral("deep/er"));
    EXPECT_EQ(createUniqueFolder(folder / QStringLiteral("deep/er")), folder / QStringLiteral("deep/er (1)"));
    EXPECT_EQ(createUniqueFolder(QStringLiteral("/proc/none")).error().domain, kPosixErrorDomain);
    // The test's own folder lies in the temporary folder, so what is made below it goes with it.
    const QString own = lastPathComponent(folder.path());
    const auto random = createRandomTemporaryFolderInSubfolder(own);
    ASSERT_TRUE(random && random->startsWith(folder.path()));
    EXPECT_NE(random, createRandomTemporaryFolderInSubfolder(own));
}

TEST(Paths, NameThatAnotherTookMeanwhileIsPassedOver)
{
    const test::TestFolder folder;
    const QString wanted = folder.write(QStringLiteral("a.txt"));
    QStringList tried;
    const auto taken = takeUniqueFilename(wanted, [&](const QString &path) -> Expected<void> {
        tried.append(lastPathComponent(path));
        // The first free name goes to somebody quicker, who takes the one after it, too.
        if (tried.size() > 1)
            return {};
        folder.write(tried.front());
        folder.write(QStringLiteral("a (2).txt"));
        return posixFailure(EEXIST);
    });
    EXPECT_EQ(taken, folder / QStringLiteral("a (3).txt"));
    EXPECT_EQ(tried, QStringList({QStringLiteral("a (1).txt"), QStringLiteral("a (3).txt")}));

    for (const auto &problem : {posixFailure(ENOSPC), tl::unexpected(Error{kErrorDomain, EEXIST, {}})}) {
        tried.clear();
        const auto failed = takeUniqueFilename(wanted, [&](const QString &path) -> Expected<void> {
            tried.append(path);
            return problem;
        });
        EXPECT_EQ(failed.error(), problem.value());
        EXPECT_EQ(tried.size(), 1);
    }
    const auto full = takeUniqueFilename(
        folder / QStringLiteral("b"), [](const QString &) -> Expected<void> { return posixFailure(EEXIST); });
    EXPECT_EQ(full.error().code, EEXIST);
}

TEST(FileHash, DigestsOfTheWholeFileInOnePass)
{
    const test::TestFolder folder;
    const QString empty = folder.write(QStringLiteral("empty"), QByteArray());
    EXPECT_EQ(FileHash::md5HashOfFileAtPath(empty), QStringLiteral("d41d8cd98f00b204e9800998ecf8427e"));
    const QString large = folder.write(QStringLiteral("large"), QByteArray(3'000'000, 'a'));
    EXPECT_EQ(FileHash::md5HashOfFileAtPath(large), QStringLiteral("99ddc9a3a46ea62c95652bdf937a1fb8"));
    EXPECT_EQ(FileHash::sha1HashOfFileAtPath(large),
              QStringLiteral("e8935af087fafce14bf157d50ab992c861688ffa"));
    EXPECT_FALSE(FileHash::sha512HashOfFileAtPath(folder.path()));
    const auto file = RegularFile::open(large);
    std::vector<DigestProgress> steps;
    const auto untilHalf = [&](const DigestProgress &progress) {
        steps.push_back(progress);
        return progress.done * 2 < progress.total;
    };
    EXPECT_FALSE(FileHash::hashesOfFile(file->descriptor(), {FileHash::Digest::MD5}, untilHalf));
    EXPECT_EQ(steps, (std::vector<DigestProgress>{{1 << 20, 3'000'000}, {2 << 20, 3'000'000}}));
    EXPECT_EQ(FileHash::sha1String(QStringLiteral("abc")),
              QStringLiteral("a9993e364706816aba3e25717850c26c9cd0d89d"));
    // Two bytes of UTF-8, but one character: only the first byte is hashed.
    EXPECT_EQ(FileHash::sha1String(QStringLiteral("\u00e9")),
              QStringLiteral("8bf7b464aaa2c2b536aa1d76a1297c19155f5603"));
}

TEST(Captures, GroupsThatTookNoPartAreEmpty)
{
    const auto capture = [](const char *pattern, const char *text) {
        return captureFirstComponentsMatchedByRegex(QLatin1String(pattern), QLatin1String(text));
    };
    EXPECT_EQ(capture("(A)(b)?", "xa"), (QStringList{QStringLiteral("a"), QStringLiteral("a"), QString()}));
    EXPECT_EQ(capture("z", "a"), QStringList());
    EXPECT_EQ(capture("(", "a"), std::nullopt);
}

} // namespace quorvin
