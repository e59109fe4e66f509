// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/OpenDialog.h"

#include "support/Events.h"
#include "support/TestFolder.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QPushButton>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

struct OpenDialogWindow : testing::Test {
    test::TestFolder folder;
    QPointer<OpenDialog> dialog = new OpenDialog(nullptr, u"Open"_s);
    QListView *list = dialog->findChild<QListView *>(u"listView"_s);
    QPushButton *open = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open);
    QStringList chosen;

    void SetUp() override
    {
        folder.write(u"films/one.mkv"_s);
        folder.write(u"two.mkv"_s);
        QObject::connect(dialog, &QFileDialog::filesSelected, dialog,
                         [this](const QStringList &paths) { chosen = paths; });
        dialog->setDirectory(folder.path());
        dialog->setViewMode(QFileDialog::List);
        dialog->show();
        ASSERT_TRUE(spinUntil([this] { return list->model()->rowCount(list->rootIndex()) == 2; }));
        list->setFocus();
    }
    ~OpenDialogWindow() override { delete dialog; }
    QModelIndex row(const QString &name) const
    {
        const QModelIndex first = list->model()->index(0, 0, list->rootIndex());
        return list->model()->match(first, Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    }
};

} // namespace

TEST_F(OpenDialogWindow, TakesFilesAndFoldersTogether)
{
    list->selectAll();
    ASSERT_TRUE(spinUntil([this] { return open->isEnabled(); }));
    open->click();
    chosen.sort();
    EXPECT_EQ(chosen, (QStringList{folder / u"films"_s, folder / u"two.mkv"_s}));
    EXPECT_TRUE(spinUntil([this] { return !dialog; }));
}

TEST_F(OpenDialogWindow, TakesAFolderByItsButtonAndEntersItByReturn)
{
    list->setCurrentIndex(row(u"films"_s));
    ASSERT_TRUE(spinUntil([this] { return open->isEnabled(); }));
    Q_EMIT list->activated(row(u"films"_s));
    EXPECT_TRUE(spinUntil([this] { return dialog->directory().absolutePath() == folder / u"films"_s; }));
    EXPECT_TRUE(chosen.isEmpty());
    dialog->setDirectory(folder.path());
    ASSERT_TRUE(spinUntil([this] { return list->model()->rowCount(list->rootIndex()) == 2; }));
    list->setCurrentIndex(row(u"films"_s));
    ASSERT_TRUE(spinUntil([this] { return open->isEnabled(); }));
    open->click();
    EXPECT_EQ(chosen, QStringList{folder / u"films"_s});
}

TEST_F(OpenDialogWindow, TakesAFileAlone)
{
    list->setCurrentIndex(row(u"two.mkv"_s));
    ASSERT_TRUE(spinUntil([this] { return open->isEnabled(); }));
    open->click();
    EXPECT_EQ(chosen, QStringList{folder / u"two.mkv"_s});
}

} // namespace quorvin
