// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RegularFile.h"

#include "platform/NativePath.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {

TEST(RegularFile, WhatIsNoFileIsRefusedWithoutBlocking)
{
    const test::TestFolder folder;
    const QString fifo = folder / QStringLiteral("fifo");
    ASSERT_EQ(::mkfifo(fifo.toUtf8().constData(), 0600), 0);
    EXPECT_EQ(RegularFile::open(fifo).error().description, QStringLiteral("Is a FIFO, not a regular file"));
    EXPECT_EQ(RegularFile::open(QStringLiteral("/dev/null")).error().description,
              QStringLiteral("Is a device, not a regular file"));
    EXPECT_EQ(RegularFile::open(folder.path()).error().description, QStringLiteral("Is a folder"));
    EXPECT_EQ(RegularFile::open(folder / QStringLiteral("none")).error().description,
              QStringLiteral("No such file or directory"));
}

TEST(RegularFile, LinkLeadsToItsTarget)
{
    const test::TestFolder folder;
    const QString target = folder.write(decodePath("odd\xff"), "content");
    const QString link = folder / QStringLiteral("link");
    ASSERT_EQ(::symlink(encodePath(target).constData(), link.toUtf8().constData()), 0);
    const auto file = RegularFile::open(link);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->resolvedPath(), target);
    EXPECT_EQ(file->size(), 7U);
    EXPECT_EQ(file->head(4), "cont");
    EXPECT_EQ(file->head(50), "content");
}

} // namespace quorvin
