// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NativePath.h"
#include "readers/mediainfo/MediaExtended.h"
#include "readers/mediainfo/StandardParameters.h"
#include "readers/mediainfo/oMediaInfo.h"
#include "support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>

#include <limits>

namespace quorvin {

namespace {

QString joined(const QStringList &list)
{
    return list.join(u' ');
}

} // namespace

TEST(oMediaInfo, SetUpShowsAndHidesWhatWasAsked)
{
    oMediaInfo info;
    ASSERT_TRUE(info.Open(test::sample(QStringLiteral("movie.mp4"))));
    EXPECT_TRUE(info.GetParameterOptions(StreamKind::Video, QStringLiteral("FrameCount")).startsWith(u'Y'));
    EXPECT_TRUE(
        info.GetParameterOptions(StreamKind::General, QStringLiteral("CompleteName")).startsWith(u'N'));
    EXPECT_EQ(info.GetParameterName(StreamKind::General, QStringLiteral("IsStreamable")),
              QStringLiteral("Is Streamable"));
    // A report on the parameters changes none of that.
    EXPECT_TRUE(oMediaInfo::parameterReport().startsWith(
        QStringLiteral("\nGeneral\n----------------------\nCount;\n")));
    EXPECT_TRUE(
        info.GetParameterOptions(StreamKind::General, QStringLiteral("CompleteName")).startsWith(u'N'));
}

TEST(oMediaInfo, IndexOfANameIsTheLibrarysOwn)
{
    for (const char *name : {"movie.mp4", "matroska.mkv", "two-covers.mp3", "pages.tif"}) {
        oMediaInfo info;
        ASSERT_TRUE(info.Open(test::sample(QLatin1String(name))));
        for (const StreamKind kind : kStreamKindOrder) {
            for (qint64 i = 0; info.numberOfStreams(kind) > 0 && i < info.numberOfOptionsInStream(0, kind);
                 ++i) {
                const auto index = StandardParameters::indexOf(kind, info.GetI_Name(kind, 0, i));
                EXPECT_EQ(index.value_or(i), i);
            }
        }
    }
}

TEST(oMediaInfo, SizesOfOurOwnNeedTheirShare)
{
    oMediaInfo info;
    ASSERT_TRUE(info.Open(test::sample(QStringLiteral("tone.wav"))));
    EXPECT_EQ(info.GetGeneral(0, QStringLiteral("FileSize/String/SI")), QStringLiteral("88.3 KB"));
    EXPECT_EQ(info.GetAudio(0, QStringLiteral("StreamSize/String/SI")), QStringLiteral("88.2 KB (99.9%)"));
    EXPECT_EQ(info.GetAudio(0, QStringLiteral("Source_StreamSize/String/SI")), QString());
    EXPECT_EQ(info.GetAudio(7, QStringLiteral("FileSize/String/SI")), QString());
}

TEST(oMediaInfo, NumberedFilesAreReadAlone)
{
    const test::TestFolder folder;
    const QByteArray picture = test::contentOf(test::sample(QStringLiteral("photo.jpg")));
    for (int i = 1; i <= 12; ++i)
        folder.write(QStringLiteral("img_%1.jpg").arg(i, 2, 10, QLatin1Char('0')), picture);
    oMediaInfo info;
    ASSERT_TRUE(info.Open(folder / QStringLiteral("img_01.jpg")));
    EXPECT_EQ(info.GetGeneral(0, QStringLiteral("FileSize")), QString::number(picture.size()));
}

TEST(oMediaInfo, ReportsOpenAnyName)
{
    const test::TestFolder folder;
    const QByteArray tone = test::contentOf(test::sample(QStringLiteral("tone.wav")));
    for (const QByteArray &name :
         {QByteArray("odd\xff.wav"), QByteArray("two\nlines.wav"), QByteArray("h\xc3\xa9 *?.wav")})
        EXPECT_TRUE(
            oMediaInfo::InformOnFile(folder.write(decodePath(name), tone))->contains(QStringLiteral("PCM")))
            << name.toStdString();
    EXPECT_TRUE(oMediaInfo::InformCompleteOnFile(folder / decodePath("odd\xff.wav"))
                    ->contains(QStringLiteral("Count of stream of this kind")));
    EXPECT_FALSE(oMediaInfo::InformOnFile(folder / QStringLiteral("none")));
}

TEST(oMediaInfo, NamesOfKinds)
{
    EXPECT_EQ(streamKindToHumanString(3), QStringLiteral("Subtitles"));
    EXPECT_EQ(streamKindToString(7), std::nullopt);
    EXPECT_EQ(streamKindToString(-1), std::nullopt);
    EXPECT_EQ(streamStringToKind(u"Menu"), StreamKind::Menu);
    EXPECT_EQ(streamStringToKind(u"Chapters"), StreamKind::General);
    const auto parameters = oMediaInfo::dictionaryOfParameters();
    ASSERT_EQ(parameters.size(), 7U);
    EXPECT_EQ(parameters[2].first, QStringLiteral("Audio"));
    const QString general = joined(parameters[0].second);
    EXPECT_TRUE(general.contains(QStringLiteral(" FileSize/String/SI FileSize/String ")));
    EXPECT_TRUE(
        joined(parameters[1].second).contains(QStringLiteral(" StreamSize/String/SI StreamSize/String ")));
    EXPECT_FALSE(joined(parameters[1].second).contains(QStringLiteral("FileSize/String/SI")));
}

TEST(oMediaInfo, ReportAsATree)
{
    const ExtTreeItems tree
        = completeMediaInfo(QStringLiteral("Lead : in\nGeneral\nA  : 1 \n\nTitle : a : b\nB : 2"));
    QStringList lines;
    for (const ExtTreeItemPtr &item : tree)
        lines.append(item->extValue()
                     + (item->children() ? QStringLiteral("(%1)").arg(item->children()->size()) : QString()));
    EXPECT_EQ(lines.join(u'|'), QStringLiteral("Lead: in|General(1)|Title : a : b(1)"));
    EXPECT_EQ(tree[1]->children()->front()->extValue(), QStringLiteral("A: 1"));
}

} // namespace quorvin
