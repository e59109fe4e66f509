// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/InProcessRunner.h"
#include "platform/NativePath.h"
#include "platform/RegularFile.h"
#include "process/ExifToolStart.h"
#include "process/ReaderRunner.h"
#include "support/FakeExifTool.h"
#include "surgery/AttachmentFiles.h"
#include "surgery/MatroskaAttachments.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <optional>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// An element of Matroska.
QByteArray element(const char *id, const QByteArray &content)
{
    QByteArray length(8, '\0');
    for (qsizetype i = 0, size = content.size(); i < 7; ++i, size >>= 8)
        length[7 - i] = static_cast<char>(size & 0xFF);
    length[0] = 1;
    return QByteArray::fromHex(id) + length + content;
}

QByteArray attachment(const QByteArray &name, const QByteArray &content)
{
    return element("61a7",
                   element("466e", name) + element("4660", "a/b") + element("465c", content)
                       + element("46ae", "1"));
}

QByteArray matroskaWith(const QByteArray &attachments)
{
    return element("1a45dfa3", element("4282", "matroska"))
        + element("18538067", element("1549a966", element("4d80", "x")) + element("1941a469", attachments));
}

SavedFiles saved(JobRunner &runner, const QString &path, const QString &folder)
{
    const JobResult result = runner.run({ExtractionRequest{path, folder}, {}});
    EXPECT_TRUE(result) << result.error().description.toStdString();
    return result ? std::get<SavedFiles>(*result) : SavedFiles();
}

} // namespace

TEST(Attachments, StayInTheFolderUnderNamesOfTheirOwn)
{
    if (exifToolProgram().empty())
        GTEST_SKIP() << "no exiftool";
    const test::TestFolder source;
    QByteArray bytes(3'000'000, 'x');
    for (qsizetype i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * 7 ^ i >> 8);
    const QByteArray text("hello\n\"w\xC3\xB6rld\"\t\\x\r\n");
    const QString path
        = source.write(u"a.mkv"_s,
                       matroskaWith(attachment("a.bin", bytes) + attachment("../../b.txt", text)
                                    + attachment("a.bin", "12.50") + attachment("..", "true")
                                    + attachment("link", "1") + attachment("empty", {})));
    for (const auto &runner : {makeReaderRunner(), makeInProcessRunner()}) {
        const test::TestFolder outside;
        const QString folder = outside.path() + u"/in"_s;
        const QString old = outside.write(u"in/b.txt"_s, "old");
        ASSERT_TRUE(QFile::link(outside / u"none"_s, folder + u"/link"_s));
        const SavedFiles files = saved(*runner, path, folder);
        EXPECT_TRUE(files.problems.empty());
        QStringList names;
        for (const QString &each : files.paths) {
            EXPECT_EQ(withoutLastPathComponent(each), folder);
            names.append(lastPathComponent(each));
        }
        names.sort();
        EXPECT_EQ(names,
                  (QStringList{u"a (1).bin"_s, u"a.bin"_s, u"attachment"_s, u"b (1).txt"_s, u"link (1)"_s}));
        EXPECT_TRUE(outside.names().isEmpty()) << "nothing beside the folder, and nothing left over";
        EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden).size(), 7);
        EXPECT_EQ(test::contentOf(old), "old");
        EXPECT_EQ(test::contentOf(folder + u"/b (1).txt"_s), text);
        EXPECT_EQ(test::contentOf(folder + u"/a.bin"_s) + test::contentOf(folder + u"/a (1).bin"_s),
                  bytes + "12.50");
        EXPECT_EQ(QFileInfo(folder + u"/a.bin"_s).permissions(), QFileInfo(old).permissions());
    }
}

TEST(Attachments, LargeOnesAndThoseBehindTheStreamsComeToo)
{
    const QByteArray large(12'000'000, 'L');
    const QByteArray openCluster = QByteArray::fromHex("1f43b67501ffffffffffffff") + element("e7", "0");
    const QByteArray file = element("1a45dfa3", element("4282", "matroska"))
        + QByteArray::fromHex("18538067ff")
        + element("1941a469", attachment("large.bin", large) + attachment("small.txt", "TRUE"))
        + element("1f43b675", QByteArray(1000, '\x19')) + openCluster
        + element("1941a469", element("61a7", element("465c", "nameless")) + attachment("x/late", "end"));
    const test::TestFolder source;
    const auto runner = makeReaderRunner();
    std::optional<test::NoExifTool> none;
    for (const bool isInstalled : {true, false}) {
        if (!isInstalled)
            none.emplace();
        const test::TestFolder folder;
        const SavedFiles files = saved(*runner, source.write(u"a.mkv"_s, file), folder.path());
        EXPECT_TRUE(files.problems.empty());
        EXPECT_EQ(folder.names(), QStringList({u"large.bin"_s, u"late"_s, u"small.txt"_s}));
        EXPECT_EQ(test::contentOf(folder / u"large.bin"_s), large);
        EXPECT_EQ(test::contentOf(folder / u"small.txt"_s), "TRUE");
        EXPECT_EQ(test::contentOf(folder / u"late"_s), "end");
    }

    const test::TestFolder other;
    const QString cut = source.write(u"cut.mkv"_s, file.first(6'000'000));
    EXPECT_EQ(saved(*runner, cut, other.path()).problems,
              std::vector<QString>({u"attachment large.bin: the file ends in it"_s}));
    EXPECT_TRUE(other.names().isEmpty());
}

TEST(Attachments, NoCutLeadsTheSearchAstray)
{
    const QByteArray whole = matroskaWith(attachment("a", "1") + attachment("b", "22"));
    const test::TestFolder folder;
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        const auto file = RegularFile::open(folder.write(u"a.mkv"_s, whole.first(length)));
        ASSERT_TRUE(file);
        const auto found = matroskaAttachments(*file);
        EXPECT_LE(found.size(), 2U);
        for (const MatroskaAttachment &attachment : found)
            EXPECT_LE(attachment.offset, static_cast<quint64>(length));
    }
    QByteArray endless = whole;
    endless.replace(QByteArray::fromHex("465c0100000000000002"), QByteArray::fromHex("465c01fffffffffffffe"));
    const auto file = RegularFile::open(folder.write(u"b.mkv"_s, endless));
    EXPECT_EQ(matroskaAttachments(*file).size(), 2U);
}

TEST(Attachments, FilesWithoutAnyGiveNothing)
{
    if (exifToolProgram().empty())
        GTEST_SKIP() << "no exiftool";
    const test::TestFolder folder;
    const auto runner = makeReaderRunner();
    EXPECT_TRUE(saved(*runner, test::sample(u"tone.wav"_s), folder.path()).paths.empty());
    EXPECT_FALSE(runner->run({ExtractionRequest{u"/none.mkv"_s, folder.path()}, {}}));
    EXPECT_TRUE(folder.names().isEmpty());
    const test::NoExifTool none;
    const auto result
        = makeReaderRunner()->run({ExtractionRequest{test::sample(u"tone.wav"_s), folder.path()}, {}});
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().description, u"exiftool is not installed"_s);
}

TEST(Attachments, OneThatCanNotBeWrittenHarmsNoOther)
{
    const test::TestFolder folder;
    AttachmentFiles files(folder.path() + u"/missing"_s);
    files.addContent("k", "text");
    files.addName("k", u"a.txt"_s);
    files.addContent("empty", {});
    files.addName("empty", u"empty"_s);
    files.addName("none", u"b.txt"_s);
    const SavedFiles missing = files.finish();
    EXPECT_TRUE(missing.paths.empty());
    EXPECT_EQ(missing.problems,
              std::vector<QString>({u"attachment a.txt: No such file or directory"_s,
                                    u"attachment b.txt: exiftool does not give its contents"_s}));

    const test::TestFolder crowd;
    AttachmentFiles many(crowd.path());
    for (std::size_t i = 0; i < AttachmentFiles::kMost + 2; ++i) {
        const QByteArray key = QByteArray::number(qulonglong(i));
        many.addName(key, QString::fromLatin1(key));
        many.addContent(key, "text");
    }
    const SavedFiles most = many.finish();
    EXPECT_EQ(most.paths.size(), AttachmentFiles::kMost);
    EXPECT_EQ(most.problems.size(), 1U);

    AttachmentFiles others(folder.path());
    others.addContent("nameless", "text");
    others.addContent("k", "base64:aGVs\nbG8=");
    others.addName("k", u"c"_s);
    EXPECT_EQ(others.finish().paths, std::vector<QString>({folder / u"c"_s}));
    EXPECT_EQ(test::contentOf(folder / u"c"_s), "hello");
    EXPECT_EQ(folder.names(), QStringList(u"c"_s));
}

TEST(Attachments, NamesAreOnesThatAFileCanHave)
{
    for (const auto &[name, expected] : {std::pair(u"a/b/c.ttf"_s, u"c.ttf"_s),
                                         {u"/"_s, u"attachment"_s},
                                         {u"a/.."_s, u"attachment"_s},
                                         {u"..."_s, u"attachment"_s},
                                         {u" \n"_s, u"attachment"_s},
                                         {u"a\nb"_s, u"a_b"_s},
                                         {u".hidden"_s, u".hidden"_s}})
        EXPECT_EQ(fileNameOfAttachment(name), expected);
    const QString cut = fileNameOfAttachment(QString(500, QChar(0x20AC)) + u".ttf"_s);
    EXPECT_TRUE(cut.endsWith(u".ttf"_s));
    EXPECT_EQ(cut.toUtf8().size(), 240 - 236 % 3);
}

} // namespace quorvin
