// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NativePath.h"
#include "readers/RecordBuilder.h"
#include "support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

namespace quorvin {

namespace {

QuorvinDataPtr record(const QString &path, const RecordOptions &options = {})
{
    return RecordBuilder(options).dataAboutFile(path).value_or(nullptr);
}

/// Everything of a record that depends on the media alone.
QString mediaText(const QuorvinData &data)
{
    const QString text = data.stringForExportText();
    return text.mid(text.indexOf(QStringLiteral("\n\n")));
}

} // namespace

TEST(MediaRecord, LinesOfTheGeneralTab)
{
    const auto data = record(test::sample(QStringLiteral("matroska.mkv")));
    ASSERT_TRUE(data);
    EXPECT_EQ(data->stringForExportGeneral(),
              QStringLiteral("Container: Matroska, 87.2 KB, 00:00:03, 346 kb/s\n"
                             "Video: AVC, 320x180, 25.000 fps, 71.4 kb/s - Main feature\n"
                             "Audio #1: AC-3, 96.0 kb/s CBR, 48.0 kHz, Stereo, English\n"
                             "Audio #2: FLAC, 107 kb/s VBR, 48.0 kHz, Mono, French - Commentary\n"
                             "Subtitles #1: UTF-8, English\n"
                             "Subtitles #2: UTF-8, French\n"
                             "Menu: 2 chapters"));
    const auto &lines = data->generalInfo().lines;
    EXPECT_EQ(lines[2].key, QStringLiteral("Audio"));
    EXPECT_EQ(lines[2].streamIndex, 1U);
    EXPECT_EQ(lines[2].value.plain.mid(lines[2].value.titleStart), QStringLiteral("Commentary"));
    EXPECT_FALSE(lines[1].value.hasTitle());
    EXPECT_EQ(lines[5].key, QStringLiteral("Menu/Chapters"));
    EXPECT_TRUE(data->isVideo() && data->isAudio() && !data->isUnknown());
    EXPECT_EQ(data->duration(), 2016);
}

TEST(MediaRecord, SizesAndDurationsFollowTheirRules)
{
    const auto decimal = record(test::sample(QStringLiteral("movie.mp4")));
    ASSERT_TRUE(decimal);
    const auto &stream = decimal->groups().group(u"Video")->streams.front();
    EXPECT_EQ(decimal->groups().lookUp(stream, u"StreamSize/String/SI"), QStringLiteral("17.8 KB (27.0%)"));
    EXPECT_EQ(decimal->groups().lookUp(stream, u"StreamSize/String"), std::nullopt);
    EXPECT_EQ(decimal->groups().lookUp(stream, u"Duration/String1"), QStringLiteral("2 s 0 ms"));
    EXPECT_EQ(decimal->groups().lookUp(stream, u"Duration/String"), std::nullopt);
    EXPECT_EQ(decimal->mapLocation(), (Location{48.8577, 2.295}));

    RecordOptions options;
    options.useSIUnits = false;
    const auto binary = record(test::sample(QStringLiteral("movie.mp4")), options);
    const auto &binaryStream = binary->groups().group(u"Video")->streams.front();
    EXPECT_EQ(binary->groups().lookUp(binaryStream, u"StreamSize/String"), QStringLiteral("17.4 KiB (27%)"));
    EXPECT_EQ(binary->groups().lookUp(binaryStream, u"StreamSize/String/SI"), std::nullopt);
}

TEST(MediaRecord, EmptyAndForeignFilesAreUnknown)
{
    const test::TestFolder folder;
    const auto empty = record(folder.write(QStringLiteral("empty.mp4"), QByteArray()));
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->isUnknown());
    EXPECT_EQ(empty->stringForExportGeneral(), QStringLiteral("Container: Unknown Format, 0 bytes"));
    EXPECT_EQ(empty->duration(), 0);
    EXPECT_FALSE(record(folder / QStringLiteral("none")));
    EXPECT_FALSE(record(folder.path()));
}

TEST(MediaRecord, CoverIsTheFirst)
{
    const auto data = record(test::sample(QStringLiteral("two-covers.mp3")));
    ASSERT_TRUE(data);
    const Cover &cover = data->generalInfo().cover;
    EXPECT_EQ(cover.width, 320);
    EXPECT_TRUE(cover.isValid());
}

TEST(MediaRecord, TruncatedFilesKeepWhatCouldBeRead)
{
    const test::TestFolder folder;
    for (const char *name : {"two-covers.mp3", "tone.flac", "tone.wav", "pages.tif", "profiled.png"}) {
        const QByteArray whole = test::contentOf(test::sample(QLatin1String(name)));
        for (qsizetype length = 0; length < whole.size(); length = length * 3 / 2 + 1) {
            const QString path = folder.write(QLatin1String(name), whole.first(length));
            const auto data = record(path);
            ASSERT_TRUE(data) << name << length;
            EXPECT_EQ(data->generalInfo().filesizeinbytes, QString::number(length));
        }
    }
}

TEST(MediaRecord, EveryNameGivesTheSameMedia)
{
    const test::TestFolder folder;
    const QByteArray tone = test::contentOf(test::sample(QStringLiteral("tone.flac")));
    const auto plain = record(folder.write(QStringLiteral("plain.flac"), tone));
    for (const QByteArray &name :
         {QByteArray("odd\xff.flac"), QByteArray("two\nlines.flac"), QByteArray("\xf0\x9f\x8e\xac.flac")}) {
        const auto data = record(folder.write(decodePath(name), tone));
        ASSERT_TRUE(data);
        EXPECT_EQ(mediaText(*data), mediaText(*plain));
        EXPECT_EQ(data->generalInfo().fileUTI, QStringLiteral("audio/flac"));
    }
}

TEST(MediaRecord, ThreadsReadAtOnce)
{
    const QDir samples(test::samplesFolder());
    std::vector<QString> paths;
    for (const QString &name : samples.entryList(QDir::Files))
        paths.push_back(samples.filePath(name));
    std::vector<std::vector<QString>> texts(4);
    {
        std::vector<std::jthread> threads;
        for (auto &found : texts) {
            threads.emplace_back([&] {
                for (const QString &path : paths)
                    found.push_back(record(path)->stringForExportText());
            });
        }
    }
    for (const auto &found : texts)
        EXPECT_EQ(found, texts.front());
}

} // namespace quorvin
