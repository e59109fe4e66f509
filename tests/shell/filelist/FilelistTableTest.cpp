// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistTable.h"

#include <QApplication>
#include <QStringListModel>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

class AskedModel final : public QStringListModel {
public:
    using QStringListModel::QStringListModel;

    QModelIndex index(int row, int column, const QModelIndex &parent) const override
    {
        ++asked;
        return QStringListModel::index(row, column, parent);
    }

    mutable int asked = 0;
};

} // namespace

TEST(FilelistTable, ARowThatChangesLeavesTheOthersWhereTheyAre)
{
    constexpr int kRows = 5'000;
    QStringList names;
    for (int i = 0; i < kRows; ++i)
        names.append(QString::number(i));
    AskedModel model(names);
    QItemSelectionModel selection(&model);
    FilelistTable table(model, selection);
    table.resize(200, 300);
    table.show();
    const QModelIndex last = model.index(kRows - 1, 0, {});
    const QRect place = table.visualRect(last);
    EXPECT_GT(model.asked, kRows) << "has laid them out";

    model.asked = 0;
    model.setData(last, QStringLiteral("another name"));
    EXPECT_EQ(table.visualRect(last), place);
    QApplication::processEvents();
    EXPECT_LT(model.asked, kRows / 2);

    EXPECT_TRUE(model.removeRow(0));
    const QModelIndex moved = model.index(kRows - 2, 0, {});
    EXPECT_EQ(table.visualRect(moved), place.translated(0, -place.height()));
}

} // namespace quorvin
