// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/FrameChannel.h"

#include "process/PanelFrames.h"
#include "support/Events.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <memory>
#include <vector>

namespace quorvin {

using test::spinUntil;

namespace {

/// A channel, and the bare other end of its socket.
struct FrameChannels : testing::Test {
    std::array<int, 2> ends{};
    std::vector<QByteArray> taken;
    bool isLost = false;
    std::unique_ptr<FrameChannel> channel;

    void SetUp() override
    {
        ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
        channel = std::make_unique<FrameChannel>(ends[0], 100,
                                                 FrameChannel::Listener{[this](QByteArrayView content) {
                                                                            taken.push_back(
                                                                                content.toByteArray());
                                                                            return content != "no message";
                                                                        },
                                                                        [this] {
                                                                            isLost = true;
                                                                            channel.reset();
                                                                        }});
    }
    void TearDown() override { ::close(ends[1]); }
    void say(const QByteArray &bytes) const
    {
        ASSERT_EQ(::write(ends[1], bytes.constData(), static_cast<std::size_t>(bytes.size())), bytes.size());
    }
};

QByteArray framedBytes(const QByteArray &content)
{
    const auto length = static_cast<quint32>(content.size());
    return QByteArray(reinterpret_cast<const char *>(&length), sizeof length) + content;
}

/// Without the length.
template <typename Message>
QByteArray contentOfPanel(const Message &message)
{
    return frameOf(message).sliced(sizeof(quint32));
}

} // namespace

TEST_F(FrameChannels, FramesComeWholeHoweverTheyAreCut)
{
    const QByteArray bytes = framedBytes("one") + framedBytes("two");
    for (const char byte : bytes) {
        say(QByteArray(1, byte));
        QCoreApplication::processEvents();
    }
    ASSERT_TRUE(spinUntil([this] { return taken.size() == 2; }));
    say(framedBytes("three") + framedBytes("four"));
    ASSERT_TRUE(spinUntil([this] { return taken.size() == 4; }));
    EXPECT_EQ(taken, (std::vector<QByteArray>{"one", "two", "three", "four"}));
    EXPECT_FALSE(isLost);
}

TEST_F(FrameChannels, WhatIsNoFrameLosesThem)
{
    const auto losing = [this](const QByteArray &bytes) {
        taken.clear();
        isLost = false;
        SetUp();
        say(bytes);
        const bool wasLost = spinUntil([this] { return isLost; });
        ::close(ends[1]);
        return wasLost;
    };
    ::close(ends[1]);
    channel.reset();
    EXPECT_TRUE(losing(framedBytes({})));
    EXPECT_TRUE(losing(framedBytes(QByteArray(101, 'x'))));
    EXPECT_TRUE(losing("\xff\xff\xff\xff garbage"));
    EXPECT_TRUE(losing(framedBytes("no message") + framedBytes("one")));
    EXPECT_EQ(taken.size(), 1U) << "nothing is taken from one that is lost";
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
    ::close(ends[0]);
}

TEST_F(FrameChannels, EndWithTheOtherSide)
{
    say(framedBytes("farewell") + QByteArray("\5\0", 2));
    ::shutdown(ends[1], SHUT_RDWR);
    EXPECT_TRUE(spinUntil([this] { return isLost; }));
    EXPECT_EQ(taken, (std::vector<QByteArray>{"farewell"}));
}

TEST_F(FrameChannels, NeverWaitForWhoDoesNotRead)
{
    const QByteArray frame = framedBytes(QByteArray(100, 'x'));
    while (!channel->isLost())
        channel->send(frame);
    EXPECT_TRUE(spinUntil([this] { return isLost; }));
}

TEST(PanelFrames, CrossWithoutLossAndNothingElseDoes)
{
    PanelFile file{.number = 7, .path = QStringLiteral("/odd?"), .opens = true, .window = 1ULL << 40};
    file.path[4] = QChar(0xDCFF);
    const QByteArray content = contentOfPanel(PanelOrder(file));
    const auto order = panelOrderOf(content);
    ASSERT_TRUE(order);
    const auto &crossed = std::get<PanelFile>(*order);
    EXPECT_EQ(crossed.path, file.path);
    EXPECT_EQ(crossed.window, file.window);
    EXPECT_TRUE(crossed.opens);
    for (qsizetype length = 0; length < content.size(); ++length)
        EXPECT_FALSE(panelOrderOf(content.first(length))) << length;
    EXPECT_FALSE(panelOrderOf(content + 'x'));
    file.path = QStringLiteral("http://a/b");
    EXPECT_FALSE(panelOrderOf(contentOfPanel(PanelOrder(file)))) << "no path of this machine";

    const auto report
        = panelReportOf(contentOfPanel(PanelReport(PanelKey{Qt::Key_Down, 3, QStringLiteral("d"), true})));
    ASSERT_TRUE(report);
    EXPECT_EQ(std::get<PanelKey>(*report).key, Qt::Key_Down);
    EXPECT_TRUE(std::get<PanelKey>(*report).isRepeated);
    EXPECT_FALSE(panelReportOf("\x09what"));
}

} // namespace quorvin
