// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/CurrentFileWait.h"

#include "support/Events.h"

#include <gtest/gtest.h>

namespace quorvin {

TEST(CurrentFileWait, IsToldOfAfterAMomentAndCanBeSkippedWhenItIsLong)
{
    const auto file = FilelistItem::itemWithFilename(QStringLiteral("/f/a"), QStringLiteral("a"));
    const auto other = FilelistItem::itemWithFilename(QStringLiteral("/f/b"), QStringLiteral("b"));
    CurrentFileWait wait;
    int changes = 0;
    std::vector<FilelistItemPtr> skipped;
    QObject::connect(&wait, &CurrentFileWait::changed, [&] { ++changes; });
    QObject::connect(&wait, &CurrentFileWait::skipWanted,
                     [&](const FilelistItemPtr &unwanted) { skipped.push_back(unwanted); });
    wait.start(other);
    wait.stop();
    EXPECT_EQ(changes, 0) << "what comes at once is not told of";
    wait.start(file);
    ASSERT_TRUE(test::spinUntil([&] { return wait.stage() == CurrentFileWait::Reading; }));
    wait.skip();
    EXPECT_TRUE(skipped.empty());
    wait.start(file);
    EXPECT_EQ(wait.stage(), CurrentFileWait::Reading) << "it goes on";
    ASSERT_TRUE(test::spinUntil([&] { return wait.stage() == CurrentFileWait::Long; }));
    EXPECT_EQ(wait.file(), file);
    ASSERT_TRUE(test::spinUntil([&] { return wait.seconds() > 2 && changes > 2; }));
    wait.skip();
    EXPECT_EQ(skipped, std::vector{file});
    wait.start(other);
    EXPECT_EQ(wait.stage(), CurrentFileWait::None);
    EXPECT_EQ(wait.seconds(), 0);
}

} // namespace quorvin
