// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/ViewChoice.h"

#include "preview/FittedImage.h"
#include "preview/PlayerView.h"
#include "preview/TextExcerpt.h"
#include "support/Pictures.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;

TEST(ViewChoice, GoesByNameAndContent)
{
    const auto view = [](const char *name, const QByteArray &head) {
        return viewFor(QString::fromLatin1(name), head).view;
    };
    const auto head
        = [](const char *name) { return test::contentOf(test::sample(QLatin1String(name))).first(4096); };
    EXPECT_EQ(view("photo.jpg", head("photo.jpg")), PanelView::Picture);
    EXPECT_EQ(view("no-name", head("photo.jpg")), PanelView::Picture);
    EXPECT_EQ(view("a.heic", test::heif(heif_compression_HEVC)), PanelView::Picture);
    EXPECT_EQ(view("movie.mp4", head("movie.mp4")), PanelView::Medium);
    EXPECT_EQ(view("renamed.bin", head("matroska.mkv")), PanelView::Medium);
    EXPECT_TRUE(viewFor(u"movie.mp4"_s, head("movie.mp4")).hasPictures);
    EXPECT_FALSE(viewFor(u"tone.flac"_s, head("tone.flac")).hasPictures);
    EXPECT_EQ(view("notes.txt", "Dear reader"), PanelView::Text);
    EXPECT_EQ(view("drawing.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\"/>"), PanelView::Text);
    EXPECT_EQ(view("data.bin", QByteArray("\0\1\2\3", 4)), PanelView::Facts);
    EXPECT_EQ(view("archive.zip", QByteArray("PK\3\4\24\0\0\0", 8)), PanelView::Facts);

    // What a player would follow to other places is only ever shown.
    EXPECT_EQ(view("list.m3u8", "#EXTM3U\nhttp://example.org/a.ts\n"), PanelView::Text);
    EXPECT_EQ(view("list.mp4", "#EXTM3U\n#EXTINF:1,\nhttp://example.org/a.ts\n"), PanelView::Text);
    EXPECT_EQ(view("radio.pls", "[playlist]\nFile1=http://example.org/\n"), PanelView::Text);
}

TEST(TextExcerpt, ReadsWhatTheBytesMean)
{
    EXPECT_EQ(textOf("gr\xc3\xbc\xc3\x9f\r\ndich\rnow\n", true), u"grüß\ndich\nnow\n"_s);
    EXPECT_EQ(textOf("gr\xfc\xdf", true), u"grüß"_s);
    EXPECT_EQ(textOf("gr\xc3\xbc\xc3", false), u"grü"_s) << "cut within a character";
    EXPECT_EQ(textOf("gr\xc3\xbc\xc3", true), u"grÃ¼Ã"_s);
    EXPECT_EQ(textOf(QByteArray("\xff\xfeg\0r\0\xfc\0", 8), true), u"grü"_s);
    EXPECT_EQ(textOf(QByteArray("a\0b\tc\x1b[1m", 9), true), u"a\uFFFDb\tc\uFFFD[1m"_s);
    EXPECT_EQ(textOf("", true), QString());

    const QString broken = textOf(QByteArray(2 * kMostLineCharacters + 1, 'x'), true);
    EXPECT_EQ(broken.count(u'\n'), 2);
    EXPECT_EQ(broken.indexOf(u'\n'), kMostLineCharacters);
}

TEST(FittedImage, KeepsItsShape)
{
    const QRect area(0, 0, 100, 100);
    EXPECT_EQ(fittedRect({400, 200}, area, 1, false).size(), QSize(100, 50));
    EXPECT_EQ(fittedRect({40, 20}, area, 1, false).size(), QSize(40, 20));
    EXPECT_EQ(fittedRect({40, 20}, area, 2, false).size(), QSize(20, 10)) << "pixel for pixel";
    EXPECT_EQ(fittedRect({40, 20}, area, 1, true).size(), QSize(100, 50));
    EXPECT_EQ(fittedRect({30'000, 1}, area, 1, false).size(), QSize(100, 1));
    EXPECT_EQ(fittedRect({400, 200}, area, 1, false).center(), area.center());
}

TEST(PlayingTime, IsWrittenAsPlayersDo)
{
    EXPECT_EQ(playingTime(-1), u"0:00"_s);
    EXPECT_EQ(playingTime(7'999), u"0:07"_s);
    EXPECT_EQ(playingTime(754'000), u"12:34"_s);
    EXPECT_EQ(playingTime(3'723'000), u"1:02:03"_s);
}

} // namespace quorvin
