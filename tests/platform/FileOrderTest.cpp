// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileOrder.h"

#include "platform/LocalDates.h"
#include "support/TestFolder.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

QString sorted(const QString &words)
{
    const QStringList names = words.split(u' ');
    QStringList result;
    for (const std::size_t index :
         fileBrowserOrder(std::span(names.data(), static_cast<std::size_t>(names.size()))))
        result.append(names[static_cast<qsizetype>(index)]);
    return result.join(u' ');
}

} // namespace

TEST(FileOrder, NumbersByValueCaseAndWidthIgnored)
{
    EXPECT_EQ(sorted(QStringLiteral("10.jpg 2.jpg 1.jpg")), QStringLiteral("1.jpg 2.jpg 10.jpg"));
    EXPECT_EQ(sorted(QStringLiteral("b A c a2 A10")), QStringLiteral("A a2 A10 b c"));
    EXPECT_EQ(sorted(QStringLiteral("\uff42 a \uff21z c")), QStringLiteral("a \uff21z \uff42 c"));
    EXPECT_EQ(sorted(QStringLiteral("ez \u00e9a ea \u00c9b")), QStringLiteral("ea \u00e9a \u00c9b ez"));
}

TEST(FileOrder, NoTwoDifferentNamesAreEqual)
{
    const QString expected = QStringLiteral("01 1 A a \uff21");
    EXPECT_EQ(sorted(QStringLiteral("\uff21 a 1 A 01")), expected);
    EXPECT_EQ(sorted(QStringLiteral("A 01 \uff21 1 a")), expected);
}

TEST(FileOrder, AccentsFollowTheLocale)
{
    const QByteArray before = qgetenv("LC_ALL");
    qputenv("LC_ALL", "sv_SE.UTF-8");
    EXPECT_EQ(sorted(QStringLiteral("\u00e4 z a")), QStringLiteral("a z \u00e4"));
    qputenv("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(sorted(QStringLiteral("\u00e4 z a")), QStringLiteral("a \u00e4 z"));
    qputenv("LC_ALL", before);
}

TEST(FileOrder, EqualNamesKeepTheirOrder)
{
    const std::vector<QString> names(3, QStringLiteral("same"));
    EXPECT_EQ(fileBrowserOrder(names), (std::vector<std::size_t>{0, 1, 2}));
}

TEST(LocalDates, FixedFormIsTheSameEverywhere)
{
    EXPECT_EQ(fixedDate(1'614'834'367'999), QStringLiteral("2021-03-04T05:06:07Z"));
    EXPECT_EQ(fixedDate(-1000), QStringLiteral("1969-12-31T23:59:59Z"));
    EXPECT_TRUE(localizedDate(1'614'834'367'000).startsWith(QStringLiteral("March 4, 2021")));
}

} // namespace quorvin
