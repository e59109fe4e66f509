// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/PreviewWindow.h"

#include "preview/PanelServer.h"
#include "preview/PictureView.h"
#include "preview/TextExcerpt.h"
#include "preview/TextView.h"
#include "support/Events.h"
#include "support/Pictures.h"
#include "support/TestFolder.h"

#include <QBuffer>
#include <QSignalSpy>
#include <QTest>
#include <QtEndian>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <array>
#include <vector>

namespace quorvin {

using test::spinUntil;

namespace {

using namespace Qt::StringLiterals;

/// A panel in this process, and who gives it orders.
struct ThePreviewWindow : testing::Test {
    std::array<int, 2> ends = [] {
        std::array<int, 2> pair{};
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair.data()), 0);
        return pair;
    }();
    test::TestFolder folder;
    PanelServer server{ends[0]};
    PreviewWindow &panel = server.panel();
    quint32 number = 0;
    quint32 done = 0;
    std::vector<PanelReport> reports; ///< all but that an order is done
    FrameChannel parent{ends[1],
                        kMostPanelBytes,
                        {[this](QByteArrayView content) {
                             const auto report = panelReportOf(content);
                             if (const auto *told = report ? std::get_if<PanelDone>(&*report) : nullptr)
                                 done = told->number;
                             else if (report)
                                 reports.push_back(*report);
                             return report.has_value();
                         },
                         [] {}}};

    void order(PanelOrder order)
    {
        std::visit([this](auto &kind) { kind.number = ++number; }, order);
        parent.send(frameOf(order));
        EXPECT_TRUE(spinUntil([this] { return done == number; }));
    }
    void show(const QString &path) { order(PanelFile{.path = path, .opens = true}); }
    QString shownFacts() const { return panel.facts().text(); }
    bool showsFacts(const QString &part)
    {
        return spinUntil([&] { return panel.view() == PanelView::Facts && shownFacts().contains(part); });
    }
    /// What came back of a press: its key, "closed", "closed by key"; "" for nothing.
    QString answerTo(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        reports.clear();
        QTest::keyClick(&panel, key, modifiers);
        // All that was said before the next order is done has come with it.
        order(PanelLook());
        QStringList all;
        for (const PanelReport &report : reports) {
            if (const auto *back = std::get_if<PanelKey>(&report))
                all.append(QKeySequence(back->key | static_cast<int>(back->modifiers)).toString());
            else if (const auto *closed = std::get_if<PanelClosed>(&report))
                all.append(closed->byKey ? u"closed by key"_s : u"closed"_s);
        }
        return all.join(u' ');
    }
};

/// Two frames of a pixel each, red and green, again and again.
QByteArray blinkingGif()
{
    const auto frame = [](const char *pixel) {
        return QByteArray("\x21\xf9\x04\0\x02\0\0\0\x2c\0\0\0\0\1\0\1\0\0\2\2", 20) + pixel
            + QByteArray("\1\0", 2);
    };
    return QByteArray("GIF89a\1\0\1\0\x80\0\0\xff\0\0\0\xff\0", 19)
        + QByteArray("\x21\xff\x0bNETSCAPE2.0\3\1\0\0\0", 19) + frame("\x44") + frame("\x4c") + ';';
}

/// The same, one picture after the other as its own chunk.
QByteArray blinkingWebp()
{
    const auto chunk = [](const char *name, const QByteArray &content) {
        std::array<char, 4> size{};
        qToLittleEndian(static_cast<quint32>(content.size()), size.data());
        return name + QByteArray(size.data(), size.size()) + content + QByteArray(content.size() % 2, '\0');
    };
    const auto frame = [&chunk](Qt::GlobalColor color) {
        QImage pixel(1, 1, QImage::Format_RGB32);
        pixel.fill(color);
        QBuffer file;
        pixel.save(&file, "webp", 100);
        return chunk("ANMF", QByteArray(12, '\0') + QByteArray("\x14\0\0\0", 4) + file.data().mid(12));
    };
    return chunk("RIFF",
                 "WEBP" + chunk("VP8X", '\2' + QByteArray(9, '\0')) + chunk("ANIM", QByteArray(6, '\0'))
                     + frame(Qt::red) + frame(Qt::green));
}

} // namespace

TEST_F(ThePreviewWindow, ShowsPicturesAsLargeAsItCan)
{
    show(test::sample(u"photo.jpg"_s));
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.windowTitle(), u"photo.jpg"_s);
    EXPECT_TRUE(spinUntil([this] { return !panel.picture().image().isNull(); }));
    EXPECT_FALSE(panel.picture().isMoving());
    show(folder.write(u"a.heic"_s, test::heif(heif_compression_HEVC)));
    EXPECT_TRUE(spinUntil([this] { return panel.picture().image().size() == QSize(64, 48); }));
    order(PanelHide());
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(panel.picture().image().isNull()) << "it lets go";
    order(PanelFile{.path = test::sample(u"photo.jpg"_s)});
    EXPECT_FALSE(panel.isVisible()) << "what follows opens nothing";
}

TEST_F(ThePreviewWindow, SharpensADraftThatItShowedFirst)
{
    const QSignalSpy sharpened(&panel.picture(), &PictureView::largerWanted);
    show(folder.write(u"large.jpg"_s, test::picture("jpeg", {4800, 3200})));
    const int side = panel.picture().wantedSide();
    auto *picture = panel.findChild<PictureView *>();
    ASSERT_TRUE(spinUntil([&] { return !picture->image().isNull(); }));
    const QColor ground = picture->grab().toImage().pixelColor(2, picture->height() / 2);
    EXPECT_NE(ground, panel.palette().color(QPalette::Window)) << "as large as there is room for";
    EXPECT_TRUE(spinUntil([&] { return panel.picture().image().width() == side; }));
    EXPECT_EQ(sharpened.size(), 1);
}

TEST_F(ThePreviewWindow, MovesPicturesThatMove)
{
    for (const QString &path :
         {folder.write(u"a.gif"_s, blinkingGif()), folder.write(u"a.webp"_s, blinkingWebp())}) {
        show(path);
        ASSERT_TRUE(spinUntil([this] { return panel.picture().isMoving(); })) << qPrintable(path);
        for (const QColor color : {QColor(Qt::green), QColor(Qt::red), QColor(Qt::green)}) {
            const auto shows = [&] { return panel.picture().image().pixelColor(0, 0) == color; };
            EXPECT_TRUE(spinUntil(shows)) << qPrintable(path + color.name());
        }
    }
    show(test::sample(u"photo.jpg"_s));
    EXPECT_TRUE(
        spinUntil([this] { return !panel.picture().isMoving() && panel.picture().image().width() > 1; }));
}

TEST_F(ThePreviewWindow, ShowsNoMoreOfATextThanCanBeRead)
{
    show(folder.write(u"short.txt"_s, "<b>Dear</b> reader\n"));
    EXPECT_EQ(panel.text().text(), u"<b>Dear</b> reader\n"_s);
    EXPECT_EQ(panel.text().note(), QString());
    show(folder.write(u"long.txt"_s, QByteArray("line\n").repeated(kMostTextBytes)));
    EXPECT_LE(panel.text().text().size(), kMostTextBytes);
    EXPECT_FALSE(panel.text().note().isEmpty());
}

TEST_F(ThePreviewWindow, SaysWhyAFileIsNotShown)
{
    show(folder / u"gone.jpg"_s);
    EXPECT_TRUE(showsFacts(u"No such file"_s));
    ASSERT_EQ(::mkfifo((folder / u"pipe.mp4"_s).toUtf8().constData(), 0600), 0);
    show(folder / u"pipe.mp4"_s);
    EXPECT_TRUE(showsFacts(u"FIFO"_s));
    show(folder.path());
    EXPECT_TRUE(showsFacts(u"folder"_s));
    show(folder.write(u"cut.jpg"_s, test::contentOf(test::sample(u"photo.jpg"_s)).first(300)));
    EXPECT_TRUE(showsFacts(u"cannot be"_s));
    show(folder.write(u"data.bin"_s, QByteArray("\0\1\2\3", 4)));
    EXPECT_TRUE(showsFacts(u"data.bin\n"_s));
    EXPECT_TRUE(shownFacts().contains(u"4 bytes"_s)) << qPrintable(shownFacts());
}

TEST_F(ThePreviewWindow, HandsBackTheKeysThatItDoesNotNeed)
{
    show(test::sample(u"photo.jpg"_s));
    EXPECT_EQ(answerTo(Qt::Key_Down), u"Down"_s);
    EXPECT_EQ(answerTo(Qt::Key_A, Qt::ControlModifier), u"Ctrl+A"_s);
    EXPECT_EQ(answerTo(Qt::Key_Control), QString());
    EXPECT_EQ(answerTo(Qt::Key_Space), u"closed by key"_s);
    EXPECT_FALSE(panel.isVisible());
    show(folder.write(u"a.txt"_s, "text"));
    EXPECT_EQ(answerTo(Qt::Key_Escape), u"closed by key"_s);
    show(test::sample(u"photo.jpg"_s));
    reports.clear();
    panel.close();
    ASSERT_TRUE(spinUntil([this] { return reports.size() == 2; }));
    EXPECT_FALSE(std::get<PanelKept>(reports[0]).frame.isEmpty());
    EXPECT_FALSE(std::get<PanelClosed>(reports[1]).byKey);
}

TEST_F(ThePreviewWindow, EndsWithWhoGivesTheOrders)
{
    bool isLost = false;
    QObject::connect(&server, &PanelServer::lost, &server, [&] { isLost = true; });
    parent.send(QByteArray("\xff\xff\xff\xff", 4));
    EXPECT_TRUE(spinUntil([&] { return isLost; }));
}

} // namespace quorvin
