// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/FlatInfo.h"

#include "model/ExtTreeItem.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

std::shared_ptr<const FlatItem> item(const QString &key, const QVariant &value)
{
    return std::make_shared<const FlatItem>(FlatItem::itemWithKey(key, std::nullopt, value));
}

} // namespace

TEST(FlatInfo, RepeatedKeyStandsTwiceWithItsNewestItem)
{
    FlatInfo info;
    info.addItem(item(QStringLiteral("A"), 1));
    info.addItem(item(QStringLiteral("B"), 2));
    info.addItem(item(QStringLiteral("A"), 3));
    info.addItem(nullptr);
    info.addItem(item(QString(), 4));

    QStringList values;
    for (const auto &each : info.items())
        values.append(each->key + each->value);
    EXPECT_EQ(values.join(u' '), QStringLiteral("A3 B2 A3"));
    EXPECT_EQ(info[QStringLiteral("A")]->value, QStringLiteral("3"));
    EXPECT_EQ(info[2]->value, QStringLiteral("3"));
    EXPECT_EQ(info[3], nullptr);
    EXPECT_EQ(info[QStringLiteral("C")], nullptr);
}

TEST(FlatInfo, LeafWithoutLabelShowsItsKey)
{
    EXPECT_EQ(ExtTreeItem::itemWithFlatItem(item(QStringLiteral("Key"), 7))->extValue(),
              QStringLiteral("Key: 7"));
}

} // namespace quorvin
