// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/RemovalLanes.h"

#include "jobs/InProcessRunner.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr int kFiles = 40;

std::unique_ptr<MetadataRemover> makeRemover()
{
    return std::make_unique<MetadataRemover>(oEXIV2Metadata{.removeGPS = true}, JobLimits(),
                                             makeInProcessRunner());
}

} // namespace

TEST(RemovalLanes, TellWhatWasBegunInItsOrderAndBeginNothingAfterAPause)
{
    const test::TestFolder folder;
    const QByteArray photo = test::contentOf(test::sample(u"photo.jpg"_s));
    std::vector<QString> paths;
    for (int i = 0; i < kFiles; ++i)
        paths.push_back(folder.write(QString::number(i) + u".jpg"_s, i % 3 == 0 ? "no picture" : photo));
    for (const int last : {kFiles, 4}) {
        std::stop_source pause;
        auto path = paths.begin();
        const auto nextOrder = [&]() -> std::optional<MetadataRemover::Order> {
            return path == paths.end() ? std::nullopt
                                       : std::optional(MetadataRemover::Order{.path = *path++});
        };
        int told = 0;
        treatFiles({makeRemover, &MetadataRemover::planned, {}, pause.get_token()}, nextOrder,
                   [&](const RemovalReceipt &receipt) {
                       EXPECT_EQ(receipt.path, paths.at(static_cast<std::size_t>(told)));
                       EXPECT_EQ(receipt.failure.isEmpty(), told % 3 != 0) << receipt.failure.toStdString();
                       if (++told == last)
                           pause.request_stop();
                   });
        EXPECT_GE(told, last);
        EXPECT_EQ(told == kFiles, last == kFiles);
    }
}

} // namespace quorvin
