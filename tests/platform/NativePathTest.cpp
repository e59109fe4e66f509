// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NativePath.h"

#include "support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>

namespace quorvin {

TEST(NativePath, EveryNameLeadsBackToItsBytes)
{
    for (const QByteArray &name :
         {QByteArray("plain"), QByteArray("f\xc3\xa9\xf0\x9f\x8e\xac"), QByteArray("a\xffz"),
          QByteArray("\xef\xbb\xbf"
                     "a"),
          QByteArray("\xff\xef\xbb\xbf"), QByteArray("\xc3"), QByteArray("\xed\xa0\x80\xed\xb2\x80"),
          QByteArray("\xf0\x9f\x8e\xac\xff\xfe\xc3\xa9")}) {
        EXPECT_EQ(encodePath(decodePath(name)), name);
        EXPECT_EQ(isUtf8Path(decodePath(name)), name.isValidUtf8());
    }
    EXPECT_EQ(decodePath("a\xffz").toUtf8(), "a?z");
    EXPECT_NE(decodePath("\xff"), decodePath("\xfe"));
}

TEST(NativePath, AbsolutePathsKeepLinksAndDropNoise)
{
    EXPECT_EQ(absolutePath(QStringLiteral("/a//b/./c/")), QStringLiteral("/a/b/c"));
    EXPECT_EQ(absolutePath(QStringLiteral("/a/../b")), QStringLiteral("/a/../b"));
    EXPECT_EQ(absolutePath(QStringLiteral("/")), QStringLiteral("/"));
    EXPECT_EQ(absolutePath(QStringLiteral("x")), QDir::currentPath() + QStringLiteral("/x"));
    EXPECT_EQ(absolutePath(QStringLiteral("/usr/lib/..")), QStringLiteral("/usr"));
}

TEST(NativePath, ExtensionNeedsAStemInFrontOfIt)
{
    EXPECT_EQ(pathExtension(QStringLiteral("/a.b/c.tar.gz")), QStringLiteral("gz"));
    EXPECT_EQ(pathStem(QStringLiteral("/a.b/c.tar.gz")), QStringLiteral("c.tar"));
    EXPECT_EQ(pathExtension(QStringLiteral("/a.b/.hidden")), QString());
    EXPECT_EQ(pathStem(QStringLiteral("/a.b/.hidden")), QStringLiteral(".hidden"));
    EXPECT_EQ(withoutLastPathComponent(QStringLiteral("/top")), QStringLiteral("/"));
}

} // namespace quorvin
