// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/commands/CommandSet.h"
#include "shell/window/MainView.h"
#include "shell/window/OneWindow.h"
#include "shell/window/SidebarSplitView.h"
#include "support/Events.h"

#include <QAction>
#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace quorvin {

using test::spinUntil;

namespace {

struct SidebarWindow : testing::Test {
    SidebarSplitView view{new QWidget, new QWidget};
    QWidget *sidebar = view.sidebarView();

    SidebarWindow()
    {
        view.resize(800, 300);
        view.show();
        view.setSidebarWidth(300);
        QApplication::processEvents();
    }
    /// Once the splitter has given the room away that is free.
    int contentWidth() const
    {
        QApplication::processEvents();
        return view.contentView()->width();
    }
    /// From the left of the window.
    int left(const QWidget *part) const { return part->mapTo(&view, QPoint()).x(); }
    /// Drags the divider so far; the button stays down.
    void drag(int dx) const
    {
        QSplitterHandle *handle = view.handle(1);
        const QPoint from = handle->rect().center();
        QTest::mousePress(handle, Qt::LeftButton, {}, from);
        // The handle moves with the pointer, so that its places are those of the window.
        const QPoint to = handle->mapToGlobal(from + QPoint(dx, 0));
        QMouseEvent move(QEvent::MouseMove, handle->mapFromGlobal(to), to, Qt::LeftButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(handle, &move);
    }
    void drop() const { QTest::mouseRelease(view.handle(1), Qt::LeftButton); }
};

} // namespace

TEST_F(SidebarWindow, KeepsBothSidesWideEnough)
{
    view.setSidebarWidth(50);
    EXPECT_EQ(view.sidebarWidth(), 160);
    view.setSidebarWidth(700);
    EXPECT_EQ(view.sidebarWidth(), 800 - 350 - view.handleWidth());
    view.setSidebarWidth(300);
    drag(-60);
    EXPECT_NEAR(sidebar->width(), 240, 2) << "the divider is wider for the pointer than for the eye";
    drag(400);
    EXPECT_EQ(sidebar->width(), view.sidebarMaxWidth());
    drag(100 - view.sidebarMaxWidth());
    EXPECT_EQ(sidebar->width(), 160) << "not yet far enough to close it";
    drop();
    EXPECT_FALSE(view.isCollapsed());
}

TEST_F(SidebarWindow, GivesWhatGrowsToTheContentAndTakesFromTheSidebarLast)
{
    view.resize(1000, 300);
    EXPECT_EQ(sidebar->width(), 300);
    view.resize(700, 300);
    EXPECT_EQ(sidebar->width(), 300) << "the content gives first";
    view.resize(600, 300);
    EXPECT_EQ(contentWidth(), 350);
    EXPECT_EQ(sidebar->width(), 600 - 350 - view.handleWidth());
    view.resize(1000, 300);
    EXPECT_EQ(sidebar->width(), 600 - 350 - view.handleWidth()) << "what is gone does not come back";
    view.hideSidebarWithoutAnimation();
    EXPECT_EQ(contentWidth(), 1000) << "no divider either";
    view.resize(550, 300);
    view.showSidebarWithoutAnimation();
    EXPECT_EQ(sidebar->width(), 550 - 350 - view.handleWidth());
}

TEST_F(SidebarWindow, StandsOnTheSideOfItsPosition)
{
    view.setSidebarPosition(2);
    EXPECT_EQ(view.sidebarPosition(), 0);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        view.setLayoutDirection(direction);
        for (const int position : {1, 0}) {
            view.setSidebarPosition(position);
            QApplication::processEvents();
            const bool isRight = (position == 1) != (direction == Qt::RightToLeft);
            EXPECT_EQ(left(sidebar) > left(view.contentView()), isRight) << direction << position;
            EXPECT_EQ(sidebar->width(), 300);
            view.hideSidebarWithoutAnimation();
            EXPECT_EQ(contentWidth(), 800);
            view.showSidebarWithoutAnimation();
            EXPECT_EQ(sidebar->width(), 300);
        }
    }
}

TEST_F(SidebarWindow, SlidesPastTheEdgeAsWideAsItIs)
{
    for (const int position : {0, 1}) {
        view.setSidebarPosition(position);
        view.hideSidebar();
        EXPECT_TRUE(view.isCollapsed()) << "by what it is about to be";
        EXPECT_TRUE(spinUntil([&] {
            const int width = view.width() - view.contentView()->width() - view.handleWidth();
            if (sidebar->isVisible() && width < 300) {
                EXPECT_EQ(sidebar->width(), 300);
                EXPECT_EQ(left(sidebar), position == 0 ? width - 300 : view.width() - width);
            }
            return !sidebar->isVisible();
        }));
        EXPECT_EQ(contentWidth(), 800);
        view.showSidebar();
        EXPECT_FALSE(view.isCollapsed());
        EXPECT_TRUE(spinUntil([&] { return view.contentView()->width() == 800 - 300 - view.handleWidth(); }));
        view.hideSidebar();
        view.showSidebarWithoutAnimation();
        EXPECT_EQ(sidebar->width(), 300) << "in the middle of it";
    }
}

TEST_F(SidebarWindow, ClosesAtItsDividerAndComesBackAsWide)
{
    int closed = 0;
    QObject::connect(&view, &SidebarSplitView::closedByHand, [&closed] { ++closed; });
    QTest::mouseDClick(view.handle(1), Qt::LeftButton);
    EXPECT_TRUE(view.isCollapsed());
    ASSERT_TRUE(spinUntil([&] { return !sidebar->isVisible() && !view.handle(1)->isVisible(); }));
    view.showSidebarWithoutAnimation();
    EXPECT_EQ(sidebar->width(), 300);

    drag(-280);
    EXPECT_FALSE(view.isCollapsed()) << "it may come back as long as the button is down";
    EXPECT_EQ(contentWidth(), 800 - view.handleWidth());
    drop();
    EXPECT_TRUE(view.isCollapsed());
    EXPECT_EQ(closed, 2);
    view.showSidebarWithoutAnimation();
    EXPECT_EQ(sidebar->width(), 300) << "such a drag is no choice of a width";
}

using SidebarTabsWindow = test::OneWindow;

TEST_F(SidebarTabsWindow, WidensByKeyWithinItsLimits)
{
    const SidebarSplitView &sidebar = window->myView().sidebar();
    const CommandSet &commands = window->commands();
    EXPECT_EQ(sidebar.sidebarWidth(), 160);
    window->commands().run(Command::narrowSidebar);
    EXPECT_EQ(sidebar.sidebarWidth(), 160);
    window->commands().run(Command::widenSidebar);
    EXPECT_GT(sidebar.sidebarWidth(), 160);
    EXPECT_EQ(sidebar.sidebarView()->width(), sidebar.sidebarWidth());
    window->commands().run(Command::narrowSidebar);
    EXPECT_EQ(sidebar.sidebarWidth(), 160);
    window->commands().run(Command::toggleSidebar);
    EXPECT_FALSE(commands.action(Command::widenSidebar)->isEnabled());
}

TEST_F(SidebarTabsWindow, WhatIsClosedByHandStaysClosed)
{
    SidebarSplitView &sidebar = window->myView().sidebar();
    QTest::mouseDClick(sidebar.handle(1), Qt::LeftButton);
    EXPECT_TRUE(settings.boolean(Setting::sidebarIsHidden));
    EXPECT_GE(window->minimumSizeHint().width(), 160 + 350 + sidebar.handleWidth()) << "so that it can open";
    window->setCurrentTab(Tab::Extended);
    EXPECT_TRUE(sidebar.isCollapsed());
    window->commands().run(Command::toggleSidebar);
    window->setCurrentTab(Tab::Comparison);
    window->commands().run(Command::toggleSidebar);
    QTest::mouseDClick(sidebar.handle(1), Qt::LeftButton);
    window->setCurrentTab(Tab::General);
    EXPECT_TRUE(sidebar.isCollapsed());
    settings.set(Setting::sidebarPos, 1);
    MainWindowController *other = application.openEmptyWindow();
    EXPECT_TRUE(other->myView().sidebar().isCollapsed());
    EXPECT_EQ(other->myView().sidebar().sidebarPosition(), 1);
}

} // namespace quorvin
