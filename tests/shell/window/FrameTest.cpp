// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/commands/CommandSet.h"
#include "shell/desktop/ColorScheme.h"
#include "shell/desktop/Contrast.h"
#include "shell/window/OneWindow.h"
#include "shell/window/TabSelector.h"
#include "shell/window/WindowPlace.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

struct Frame : test::OneWindow {
    TabSelector *tabs = window->findChild<TabSelector *>();

    QList<QAbstractButton *> tabButtons() const { return tabs->findChildren<QAbstractButton *>(); }
    QString chosenTab() const
    {
        QStringList names;
        for (const QAbstractButton *button : tabButtons()) {
            if (button->isChecked())
                names.append(button->text());
        }
        return names.join(u'|');
    }
};

} // namespace

TEST_F(Frame, TabsStandInTheMiddleWhileThereIsRoom)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        window->setLayoutDirection(direction);
        window->resize(1000, 680);
        QApplication::processEvents();
        const int centre = tabs->mapTo(window, tabs->rect().center()).x();
        EXPECT_NEAR(centre, window->width() / 2, 2) << direction;
        window->resize(window->minimumSize());
        QApplication::processEvents();
        for (const QAbstractButton *tab : tabButtons())
            EXPECT_TRUE(window->rect().contains(QRect(tab->mapTo(window, QPoint()), tab->size())))
                << tab->text().toStdString();
    }
}

TEST_F(Frame, TabsFollowTheirCommandsAndKeys)
{
    EXPECT_EQ(chosenTab(), QStringLiteral("General"));
    window->commands().run(Command::selectPreviousTab);
    EXPECT_EQ(window->currentTab(), Tab::Custom) << "before the first comes the last";
    EXPECT_EQ(chosenTab(), QStringLiteral("Custom"));
    window->commands().run(Command::selectNextTab);
    window->commands().run(Command::selectNextTab);
    EXPECT_EQ(chosenTab(), QStringLiteral("Extended"));
    QApplication::setActiveWindow(window);
    tabButtons()[1]->setFocus();
    QTest::keyClick(tabButtons()[1], Qt::Key_Right);
    EXPECT_EQ(window->currentTab(), Tab::Comparison);
    tabButtons()[0]->click();
    EXPECT_EQ(window->currentTab(), Tab::General);
    const QAction *general = window->commands().action(Command::selectGeneralTab);
    EXPECT_TRUE(general->isChecked() && general->actionGroup()->isExclusive());
    EXPECT_FALSE(window->commands().action(Command::selectComparisonTab)->isChecked());
}

TEST_F(Frame, TheChosenTabStandsOutOfItsBar)
{
    constexpr double kLeast = 3;
    for (const bool dark : {false, true}) {
        window->setPalette(ColorScheme::ownPalette(dark));
        QImage picture(tabs->size(), QImage::Format_RGB32);
        tabs->window()->activateWindow();
        tabs->parentWidget()->render(&picture, QPoint(), QRegion(tabs->geometry()));
        const QPoint inside = tabButtons()[0]->geometry().topLeft() + QPoint(6, 6);
        EXPECT_GE(contrastOf(picture.pixelColor(inside), window->palette().color(QPalette::Window)), kLeast)
            << dark;
    }
}

TEST(WindowPlace, KeepsWindowsOnTheScreen)
{
    const QRect room(0, 30, 1280, 770);
    EXPECT_EQ(frameWithin(QRect(100, 100, 800, 600), room), QRect(100, 100, 800, 600));
    EXPECT_EQ(frameWithin(QRect(900, 500, 800, 600), room), QRect(480, 200, 800, 600));
    EXPECT_EQ(frameWithin(QRect(-50, 0, 2000, 900), room), room);
    EXPECT_EQ(frameBeside(QRect(100, 100, 800, 600), QSize(800, 600), room), QRect(128, 128, 800, 600));
    EXPECT_EQ(frameBeside(QRect(470, 190, 800, 600), QSize(800, 600), room), QRect(0, 30, 800, 600))
        << "a new row of windows begins";
}

TEST_F(Frame, TabsTellScreenReadersWhichIsChosen)
{
    window->setCurrentTab(Tab::Extended);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(tabs);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->role(), QAccessible::PageTabList);
    ASSERT_EQ(list->childCount(), kTabCount);
    for (int i = 0; i < kTabCount; ++i) {
        EXPECT_EQ(list->child(i)->role(), QAccessible::PageTab);
        EXPECT_EQ(list->child(i)->text(QAccessible::Name), tabButtons()[i]->text());
        EXPECT_EQ(list->child(i)->state().selected, i == 1);
    }
    list->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(window->currentTab(), Tab::General);
}

} // namespace quorvin
