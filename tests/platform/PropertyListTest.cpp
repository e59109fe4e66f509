// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PropertyList.h"

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

} // namespace quorvin
