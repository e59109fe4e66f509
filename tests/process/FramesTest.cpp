// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/Frames.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

/// Without the length.
template <typename Message>
QByteArray contentOf(const Message &message)
{
    return frameOf(message).sliced(sizeof(quint32));
}

} // namespace

TEST(Frames, OrderCrossesWithoutLoss)
{
    RecordRequest request{QStringLiteral("/odd?"), {}};
    request.path[4] = QChar(0xDCFF);
    request.options.useSIUnits = false;
    request.options.useExiftoolForVideo = true;
    const auto record = orderOf(contentOf(JobOrder{7, request}));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->number, 7U);
    const auto &crossed = std::get<RecordRequest>(record->request);
    EXPECT_EQ(crossed.path, request.path);
    EXPECT_FALSE(crossed.options.useSIUnits);
    EXPECT_TRUE(crossed.options.keepCover);
    EXPECT_FALSE(crossed.options.skipExtAttributes);
    EXPECT_TRUE(crossed.options.useExiftoolForVideo);

    const auto report
        = orderOf(contentOf(JobOrder{8, ReportRequest{QStringLiteral("/a"), QStringLiteral("b")}}));
    ASSERT_TRUE(report);
    EXPECT_EQ(std::get<ReportRequest>(report->request).source, QStringLiteral("b"));
}

TEST(Frames, WhatIsNoMessageIsRefused)
{
    const auto wrong = static_cast<Picture::Detail>(2);
    EXPECT_FALSE(orderOf(contentOf(JobOrder{1, PictureRequest{QStringLiteral("/a"), 9, wrong}})));
    const QByteArray order = contentOf(JobOrder{1, ReportRequest{QStringLiteral("/a"), {}}});
    for (qsizetype length = 0; length < order.size(); ++length)
        EXPECT_FALSE(orderOf(order.first(length))) << length;
    EXPECT_FALSE(orderOf(order + 'x'));
    QByteArray unknown = order;
    unknown[sizeof(quint32)] = std::variant_size_v<JobRequest>;
    EXPECT_FALSE(orderOf(unknown));

    EXPECT_FALSE(messageOf(contentOf(Greeting{.magic = 1})));
    EXPECT_FALSE(messageOf(contentOf(JobProgress{1, {2, 1}})));
    EXPECT_TRUE(messageOf(contentOf(JobFailed{1, Error{{}, 0, QStringLiteral("reason")}})));
    constexpr quint8 kKinds = std::variant_size_v<ReaderMessage>;
    EXPECT_GT(mostBytesOfMessage(kKinds - 1), 0U);
    EXPECT_EQ(mostBytesOfMessage(kKinds), 0U);
}

} // namespace quorvin
