// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/FileStream.h"

#include "filefacts/ExtendedAttributes.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace quorvin {

namespace {

/// "key=value" of each parameter, with "-" for each place where it does not show: extended, export,
/// comparison; "p" if private.
QStringList fileStream(const QString &path, const RecordOptions &options = {})
{
    const auto file = RegularFile::open(path);
    ParameterGroups groups;
    prepareFileStream(path, getFileInfo(*file, options), PrivateFacts::Everywhere, groups);
    QStringList lines;
    for (const auto &parameter : groups.parameters(groups.groups().front().streams.front())) {
        QString marks;
        for (const auto &[flag, mark] : {std::pair{ParameterFlag::SkipInExtended, u'x'},
                                         {ParameterFlag::SkipInExport, u'e'},
                                         {ParameterFlag::SkipInComparison, u'c'},
                                         {ParameterFlag::IsPrivateInfo, u'p'}})
            marks += parameter.flags.testFlag(flag) ? QString(mark) : QString();
        lines.append(parameter.term->key + u'[' + marks + QStringLiteral("]=") + groups.value(parameter));
    }
    return lines;
}

} // namespace

TEST(FileStream, FactsOfTheTargetUnderTheNameOfTheLink)
{
    const test::TestFolder folder;
    const QString target = folder.write(QStringLiteral("real.mp4"), QByteArray(1500, 'x'));
    ASSERT_TRUE(Utilities::touchDate(QStringLiteral("UTC 2021-03-04 05:06:07"), target));
    const QString link = folder / QStringLiteral("link.txt");
    ASSERT_EQ(::symlink("real.mp4", link.toUtf8().constData()), 0);
    folder.setAttribute(target, "user.xdg.tags", "red");

    QStringList lines = fileStream(link);
    lines.removeIf([](const QString &line) { return line.contains(QStringLiteral("CreationDate")); });
    lines.removeIf([](const QString &line) { return line.startsWith(QStringLiteral("Localized")); });
    EXPECT_EQ(lines.join(u'\n'),
              QStringLiteral("FileName[]=link.txt\n"
                             "FileSize[xc]=1.50 KB\n"
                             "FileSizeAndBytes[e]=1.50 KB (1500 bytes)\n"
                             "FileSizeInBytes[xc]=1500\n"
                             "FileKind[p]=MPEG-4 video\n"
                             "FileUTI[p]=video/mp4\n"
                             "FileLocation[p]=%1\n"
                             "ModificationDate[xc]=2021-03-04T05:06:07Z\n"
                             "FileTags[p]=red")
                  .arg(folder.path()));
}

TEST(FileStream, OptionsDecideOnUnitsAttributesAndHashes)
{
    const test::TestFolder folder;
    const QString path = folder.write(QStringLiteral("a.bin"), QByteArray(500, 'x'));
    folder.setAttribute(path, "user.xdg.comment", "note");
    RecordOptions options;
    const QString plain = fileStream(path, options).join(u'\n');
    EXPECT_TRUE(plain.contains(QStringLiteral("FileSizeAndBytes[e]=500 bytes\n")));
    EXPECT_TRUE(plain.contains(QStringLiteral("FileFinderComment[p]=note")));
    EXPECT_FALSE(plain.contains(QStringLiteral("Hash")));

    options.skipExtAttributes = true;
    options.computeFileHashes = true;
    const QString hashed = fileStream(path, options).join(u'\n');
    EXPECT_FALSE(hashed.contains(QStringLiteral("FileFinderComment")));
    EXPECT_TRUE(hashed.contains(QStringLiteral("FileKind")));
    EXPECT_TRUE(hashed.endsWith(QStringLiteral("MD5Hash[]=86c489dfa7e78a487a06b1860805b086\n"
                                               "SHA1Hash[]=dc31b173a0a99f4123f43c4c18e291f1101d5b0c")));

    const QString large = folder.write(QStringLiteral("b.bin"), QByteArray(1024, 'x'));
    options.useSIUnits = false;
    EXPECT_TRUE(
        fileStream(large, options).contains(QStringLiteral("FileSizeAndBytes[e]=1.00 KiB (1024 bytes)")));
}

TEST(FileStream, FlatListTakesListsOnly)
{
    const test::TestFolder folder;
    const QString path = folder.write(QStringLiteral("a.bin"), QByteArray(1500, 'x'));
    folder.setAttribute(path, "user.xdg.origin.url", "https://example.org/");
    const auto file = RegularFile::open(path);
    const FileFacts facts = getFileInfo(*file, {});
    EXPECT_TRUE(facts.fileFrom);
    const FlatInfo info = prepareFileInfo(path, *file, {}, facts);
    EXPECT_EQ(info.keys().mid(0, 4).join(u' '),
              QStringLiteral("FileName FileSize FileSizeInBytes FileSizeAndBytes"));
    EXPECT_EQ(info[QStringLiteral("FileSizeAndBytes")]->value, QStringLiteral("1.50 KB (1500)"));
    EXPECT_TRUE(info[QStringLiteral("FileLocation")]->isPrivateInfo);
    EXPECT_EQ(info[QStringLiteral("FileFrom")], nullptr);
}

} // namespace quorvin
