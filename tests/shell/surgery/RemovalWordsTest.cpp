// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/RemovalWords.h"

#include "shell/surgery/ReceiptModel.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

RemovalReceipt receiptOf(std::vector<QString> removed, std::vector<KeptItem> kept = {},
                         const QString &failure = {})
{
    RemovalReceipt receipt{.path = u"/p/one.jpg"_s};
    receipt.result = {std::move(removed), std::move(kept)};
    receipt.failure = failure;
    return receipt;
}

} // namespace

TEST(RemovalWords, TellPlanAndOutcomeApart)
{
    const std::vector<RemovalReceipt> receipts{receiptOf({u"a"_s, u"b"_s}, {{u"c"_s, u"why"_s}}),
                                               receiptOf({}), receiptOf({}, {}, u"no way"_s)};
    EXPECT_EQ(outcomeInWords(receipts[0], true), u"2 items go, 1 stays"_s);
    EXPECT_EQ(outcomeInWords(receipts[0], false), u"2 items removed, 1 kept"_s);
    EXPECT_EQ(outcomeInWords(receiptOf({u"a"_s}), true), u"1 item goes"_s);
    EXPECT_EQ(outcomeInWords(receipts[1], true), u"nothing to remove"_s);
    EXPECT_EQ(outcomeInWords(receipts[2], true), u"stays as it is: no way"_s);
    EXPECT_EQ(receiptsInWords(receipts, true, 3),
              u"1 image to be changed · 1 with nothing to remove · 1 that cannot be changed"_s);
    EXPECT_EQ(receiptsInWords(receipts, false, 1203),
              u"1 image changed · 1 with nothing to remove · 1 not changed · stopped before 1,200"_s);
}

TEST(ReceiptModel, ShowsWhatStaysThenWhatGoesThenTheDigests)
{
    ReceiptModel model;
    const QAbstractItemModelTester tester(&model);
    RemovalReceipt written = receiptOf({u"a"_s, u"b"_s}, {{u"c"_s, u"why"_s}});
    written.digestBefore = u"11"_s;
    written.digestAfter = u"22"_s;
    model.setReceipts({receiptOf({}, {}, u"no way"_s), written}, {u"x/one"_s, u"x/two"_s}, false);
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
    const QModelIndex file = model.index(1, ReceiptModel::Name);
    EXPECT_EQ(file.data(), u"x/two"_s);
    EXPECT_TRUE(file.data(Qt::DecorationRole).isValid()) << "names begin at one place";
    QStringList items;
    for (int row = 0; row < model.rowCount(file); ++row)
        items.append(model.index(row, ReceiptModel::Name, file).data().toString() + u'='
                     + model.index(row, ReceiptModel::Outcome, file).data().toString());
    EXPECT_EQ(items,
              (QStringList{u"c=stays: why"_s, u"a=removed"_s, u"b=removed"_s, u"SHA-256 before=11"_s,
                           u"SHA-256 after=22"_s}));
    model.setReceipts({written}, {u"x/two"_s}, false);
    EXPECT_FALSE(model.index(0, ReceiptModel::Name).data(Qt::DecorationRole).isValid());
}

} // namespace quorvin
