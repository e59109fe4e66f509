// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/preview/PreviewPanel.h"
#include "shell/window/SampleWindow.h"
#include "shell/window/StatusLine.h"

#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

namespace quorvin {

using test::spinUntil;

namespace {

using namespace Qt::StringLiterals;

/// A window of samples, and the program that shows them.
struct PreviewOfWindow : test::SampleWindow {
    PreviewPanel *panel = &application.preview();

    QString commandText() const { return window->commands().action(Command::togglePreviewPanel)->text(); }
    void press(Qt::Key key, const QString &text = {}) const
    {
        Q_EMIT panel->keyPressed(PanelKey{key, 0, text, false});
    }
};

} // namespace

TEST_F(PreviewOfWindow, OpensAndClosesWithSpace)
{
    table->setFocus();
    const QString closed = commandText();
    QTest::keyClick(table, Qt::Key_Space);
    EXPECT_TRUE(panel->isOpen());
    EXPECT_NE(commandText(), closed);
    EXPECT_EQ(selected(), u"0"_s);
    QTest::keyClick(table, Qt::Key_Space);
    EXPECT_FALSE(panel->isOpen());
    EXPECT_EQ(commandText(), closed);

    QTest::keyClick(table, Qt::Key_M);
    QTest::keyClick(table, Qt::Key_Space);
    EXPECT_FALSE(panel->isOpen()) << "a blank within a name";
    window->files().processFiles({});
    ASSERT_TRUE(spinUntil([this] { return window->files().filelist().empty(); }));
    EXPECT_FALSE(canRun(Command::togglePreviewPanel));
}

TEST_F(PreviewOfWindow, HandsKeysToTheList)
{
    run(Command::togglePreviewPanel);
    press(Qt::Key_Down);
    EXPECT_EQ(selected(), u"1"_s);
    press(Qt::Key_End);
    EXPECT_EQ(selected(), u"2"_s);
    press(Qt::Key_M, u"m"_s);
    EXPECT_EQ(selected(), u"0"_s) << "the next name with that letter";
    press(Qt::Key_Delete);
    EXPECT_EQ(window->files().filelist().size(), 2U) << "as a command";
    MainWindowController *other = application.openEmptyWindow();
    press(Qt::Key_Down);
    EXPECT_EQ(selected(), u"1"_s) << "of the window whose file is shown";
    other->close();
    window->close();
    EXPECT_FALSE(panel->isOpen());
}

TEST_F(PreviewOfWindow, SaysThatItHasCrashed)
{
    run(Command::togglePreviewPanel);
    ASSERT_TRUE(spinUntil([this] { return panel->processId() > 0; }));
    ::kill(pid_t(panel->processId()), SIGKILL);
    ASSERT_TRUE(spinUntil([this] { return !panel->isOpen(); }));
    const QString said = window->myView().statusLine().saying();
    EXPECT_TRUE(said.contains(u"matroska.mkv"_s)) << qPrintable(said);
    run(Command::togglePreviewPanel);
    EXPECT_TRUE(panel->isOpen());
}

} // namespace quorvin
