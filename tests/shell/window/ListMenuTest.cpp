// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/preview/PreviewPanel.h"
#include "shell/window/SampleWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// A window with matroska.mkv, movie.mp4 and tone.wav.
struct ListMenuOfWindow : test::SampleWindow {
    /// As a right click there opens it.
    QMenu *menuAt(int row) const
    {
        const QPoint at = table->visualRect(table->model()->index(row, 0)).center();
        QTest::mouseClick(table->viewport(), Qt::RightButton, {}, at);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, table->viewport()->mapToGlobal(at));
        QApplication::sendEvent(table->viewport(), &event);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        EXPECT_TRUE(menu);
        return menu;
    }
    void choose(int row, const QString &text) const
    {
        QMenu *menu = menuAt(row);
        const auto actions = menu->actions();
        const auto found = std::ranges::find(actions, text, &QAction::text);
        ASSERT_NE(found, actions.end()) << qPrintable(text);
        EXPECT_TRUE((*found)->isEnabled()) << qPrintable(text);
        menu->close();
        (*found)->trigger();
    }
    void choose(int row, Command command) const { choose(row, window->commands().action(command)->text()); }
    void select(int first, int last) const
    {
        window->files().selectRow(first);
        window->files().selection().select({table->model()->index(first, 0), table->model()->index(last, 0)},
                                           QItemSelectionModel::Select);
    }
    QString names() const
    {
        QStringList all;
        for (const FilelistItemPtr &file : window->files().filelist())
            all.append(file->prefixedPath().section(u'.', 0, 0));
        return all.join(u' ');
    }
};

} // namespace

TEST_F(ListMenuOfWindow, IsAboutTheRowThatWasClickedAndKeepsTheSelection)
{
    select(0, 1);
    QMenu *menu = menuAt(2);
    EXPECT_EQ(selected(), u"0 1"_s);
    EXPECT_EQ(window->worker().currentFile()->prefixedPath(), u"matroska.mkv"_s);
    menu->close();
    choose(2, Command::copy);
    EXPECT_TRUE(QApplication::clipboard()->text().endsWith(u"/tone.wav"_s));
    choose(2, Command::copyGeneralInfo);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(u"tone.wav\n"_s));
    choose(2, Command::refreshInfo);
    EXPECT_FALSE(window->files().filelist()[2]->isDone());
    EXPECT_TRUE(window->files().filelist()[0]->isDone());
    choose(2, Command::removeSelectedItems);
    EXPECT_EQ(names(), u"matroska movie"_s);
    EXPECT_EQ(selected(), u"0 1"_s);
    run(Command::undoRemoval);
    EXPECT_EQ(names(), u"matroska movie tone"_s);
}

TEST_F(ListMenuOfWindow, SelectsTheRowThatIsToBeShown)
{
    select(0, 1);
    const PreviewPanel &panel = application.preview();
    choose(2, Command::togglePreviewPanel);
    EXPECT_TRUE(panel.isOpen());
    EXPECT_EQ(selected(), u"2"_s);
    choose(0, Command::togglePreviewPanel);
    EXPECT_FALSE(panel.isOpen());
    EXPECT_EQ(selected(), u"2"_s) << "closing shows nothing";
}

TEST_F(ListMenuOfWindow, OnASelectedRowIsAboutAllThatAre)
{
    select(0, 1);
    choose(0, u"Remove &Only This File from List"_s);
    EXPECT_EQ(names(), u"movie tone"_s);
    EXPECT_EQ(selected(), u"0"_s);
    EXPECT_EQ(window->worker().currentFile()->prefixedPath(), u"movie.mp4"_s);
    select(0, 1);
    choose(1, Command::removeSelectedItems);
    EXPECT_EQ(names(), QString());
}

} // namespace quorvin
