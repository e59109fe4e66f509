// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FolderWalks.h"

#include "support/Events.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using test::spinUntil;

TEST(FolderWalks, DeliverWhatWasAskedForLast)
{
    const test::TestFolder folder;
    for (const char *name : {"a/1", "a/2", "b/3"})
        folder.write(QLatin1String(name));
    FolderWalks walks;
    QStringList found;
    QObject::connect(&walks, &FolderWalks::found,
                     [&](const FolderWalks::Request &request, const std::vector<FilelistItemPtr> &files) {
                         found.append(QStringLiteral("%1:%2").arg(request.index).arg(files.size()));
                     });
    using Request = FolderWalks::Request;
    const QStringList a{folder / QStringLiteral("a")};
    const QStringList b{folder / QStringLiteral("b")};
    walks.start({a, Request::kReplace});
    walks.cancel();
    EXPECT_FALSE(walks.isUnderWay());
    walks.start({a, Request::kReplace});
    walks.start({b, Request::kReplace});
    walks.start({a, 7});
    ASSERT_TRUE(spinUntil([&] { return !walks.isUnderWay(); }));
    EXPECT_EQ(found, (QStringList{QStringLiteral("-3:1"), QStringLiteral("7:2")}));
}

} // namespace quorvin
