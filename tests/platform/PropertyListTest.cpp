// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PropertyList.h"

#include "platform/PropertyListBudget.h"
#include "support/TestFolder.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

QByteArray xml(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" + content + "</plist>";
}

} // namespace

TEST(PropertyList, BinaryAndXmlGiveTheSameValue)
{
    const QByteArray binary
        = QByteArray::fromHex("62706c6973743030a2010251615162080b0d"
                              "000000000000010100000000000000030000000000000000000000000000000f");
    const QVariantList letters{QStringLiteral("a"), QStringLiteral("b")};
    EXPECT_EQ(parsePropertyList(binary), QVariant(letters));
    EXPECT_EQ(parsePropertyList(xml("<array><string>a</string><string>b</string></array>")),
              QVariant(letters));
    const auto date = parsePropertyList(xml("<date>2021-03-04T05:06:07Z</date>"));
    EXPECT_EQ(date->toDateTime(), QDateTime::fromString(QStringLiteral("2021-03-04T05:06:07Z"), Qt::ISODate));
    EXPECT_EQ(parsePropertyList(xml("<dict><key>k</key><true/></dict>"))->toMap().value(QStringLiteral("k")),
              QVariant(true));
}

TEST(PropertyList, WhatIsNoneIsRefused)
{
    EXPECT_FALSE(parsePropertyList(QByteArray()));
    EXPECT_FALSE(parsePropertyList(QByteArray("junk")));
    EXPECT_FALSE(parsePropertyList(QByteArray("bplist00") + QByteArray(40, '\xff')));
    const int depth = kMaxPropertyListDepth + 2;
    const QByteArray nested = QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth);
    EXPECT_FALSE(parsePropertyList(xml(nested)));
}

TEST(PropertyList, DateOutOfReachIsNone)
{
    for (const char *date : {"1900-01-01T00:00:00Z", "2100-01-01T00:00:00Z"})
        EXPECT_FALSE(parsePropertyList(xml(QByteArray("<date>") + date + "</date>"))->isValid()) << date;
}

namespace {

/// Lists that each name the next one `width` times, over `levels` levels, as binary; the last one is a text.
QByteArray nestedLists(int levels, int width)
{
    QByteArray list("bplist00");
    QByteArray offsets;
    for (int level = 0; level < levels; ++level) {
        offsets.append(static_cast<char>(list.size() >> 8)).append(static_cast<char>(list.size()));
        list.append(static_cast<char>(0xa0 | width)).append(QByteArray(width, static_cast<char>(level + 1)));
    }
    offsets.append(static_cast<char>(list.size() >> 8)).append(static_cast<char>(list.size()));
    list.append("\x51z");
    const auto table = static_cast<char>(list.size());
    list += offsets;
    list += QByteArray(6, '\0') + "\x02\x01" + QByteArray(7, '\0') + static_cast<char>(levels + 1)
        + QByteArray(8, '\0') + QByteArray(7, '\0') + table;
    return list;
}

} // namespace

TEST(PropertyList, ListThatExpandsWithoutMeasureIsRefused)
{
    ASSERT_TRUE(parsePropertyList(nestedLists(4, 3)));
    EXPECT_EQ(parsePropertyList(nestedLists(2, 3))->toList().at(2).toList().at(1),
              QVariant(QStringLiteral("z")));
    EXPECT_FALSE(expandsWithinBudget(nestedLists(10, 10)));
    EXPECT_FALSE(parsePropertyList(nestedLists(10, 10)));
    QByteArray cycle = nestedLists(1, 2);
    cycle.replace(9, 2, QByteArray(2, '\0'));
    EXPECT_FALSE(parsePropertyList(cycle));
    // Whatever a byte is made to say, nothing is read beside the list.
    const QByteArray whole = nestedLists(3, 3);
    for (qsizetype i = 8; i < whole.size(); ++i) {
        for (const char byte : {'\0', '\x7f', '\xff', '\xaf', '\x6f'}) {
            QByteArray damaged = whole;
            damaged[i] = byte;
            expandsWithinBudget(damaged);
            expandsWithinBudget(damaged.first(i));
        }
    }
}

} // namespace quorvin
