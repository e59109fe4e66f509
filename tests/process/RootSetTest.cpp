// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/RootSet.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

QString reduced(const QStringList &paths)
{
    return ReadableRoots(paths).paths().join(u' ');
}

/// So many folders in a folder.
QStringList manyIn(const QString &folder, int count)
{
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths.append(folder + u'/' + QString::number(i));
    return paths;
}

} // namespace

TEST(RootSet, WhatIsBelowAnotherRootIsLeftOut)
{
    EXPECT_EQ(reduced({QStringLiteral("/a/b/c"), QStringLiteral("/a"), QStringLiteral("/a!/b"),
                       QStringLiteral("/ab"), QStringLiteral("/a"), QStringLiteral("relative")}),
              QStringLiteral("/a /ab /a!/b"));
    EXPECT_EQ(reduced({QStringLiteral("/a/b"), QStringLiteral("/")}), QStringLiteral("/"));
    EXPECT_EQ(reduced({}), QString());
}

TEST(RootSet, DeepestGiveWayWhereThereAreTooMany)
{
    constexpr int kMost = ReadableRoots::kMost;
    EXPECT_EQ(ReadableRoots(manyIn(QStringLiteral("/a/b"), kMost)).paths().size(), kMost);
    EXPECT_EQ(reduced(manyIn(QStringLiteral("/a/b"), kMost + 1)), QStringLiteral("/a/b"));
    const QStringList shallow = manyIn(QStringLiteral("/x"), kMost - 1);
    const ReadableRoots mixed(shallow + manyIn(QStringLiteral("/a/b/c"), 20'000)
                              + manyIn(QStringLiteral("/a/b/d"), 20'000));
    EXPECT_EQ(mixed.paths().size(), kMost);
    EXPECT_TRUE(mixed.paths().contains(QStringLiteral("/a/b")));
    EXPECT_EQ(reduced(manyIn({}, kMost + 1)), QStringLiteral("/"));
    const QString longName(1000, u'n');
    EXPECT_EQ(reduced(manyIn(u'/' + longName, 20)), u'/' + longName) << "they fit into one message";
}

TEST(RootSet, CoverGoesByTheText)
{
    const ReadableRoots roots({QStringLiteral("/a/b"), QStringLiteral("/f/one.wav")});
    for (const char *path : {"/a/b/x.wav", "/a/b/c/d/x.wav", "/f/one.wav"})
        EXPECT_TRUE(roots.cover(QLatin1String(path))) << path;
    for (const char *path : {"/a/bc/x.wav", "/f/two.wav", "/x.wav", "/"})
        EXPECT_FALSE(roots.cover(QLatin1String(path))) << path;
    EXPECT_TRUE(ReadableRoots({QStringLiteral("/")}).cover(QStringLiteral("/a/b")));
}

TEST(RootSet, GrowsWithItsList)
{
    RootSet set({QStringLiteral("/a/b")});
    const ReadableRoots before = set.roots();
    set.add({QStringLiteral("/a"), QStringLiteral("/c")});
    EXPECT_EQ(set.roots().paths().join(u' '), QStringLiteral("/a /c"));
    EXPECT_EQ(before.paths().join(u' '), QStringLiteral("/a/b"));
}

} // namespace quorvin
