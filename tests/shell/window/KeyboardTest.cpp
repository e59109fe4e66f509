// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonTable.h"
#include "shell/compare/ComparisonView.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/window/SampleWindow.h"
#include "shell/window/StatusLine.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

struct Keyboard : test::SampleWindow {
    ExtendedOutline *tree = &window->myView().info().outline();
};

/// As a screen reader is told: "name name", with a sign behind a row that has the focus.
QString readOut(QWidget *view)
{
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(view);
    QStringList rows;
    for (int i = 0; i < told->childCount(); ++i) {
        QAccessibleInterface *row = told->child(i);
        EXPECT_EQ(told->indexOfChild(row), i);
        EXPECT_EQ(row->parent(), told);
        rows.append(row->text(QAccessible::Name) + (row->state().focused ? u" <-"_s : QString()));
    }
    return rows.join(u' ');
}

} // namespace

TEST_F(Keyboard, SelectsInTheListAndNotInThePaneBeside)
{
    run(Command::selectExtendedTab);
    table->setFocus();
    EXPECT_FALSE(canRun(Command::selectAll));
    QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selected(), QStringLiteral("0"));
    EXPECT_FALSE(tree->selectionModel()->hasSelection());
    QTest::keyClick(table, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(selected(), QStringLiteral("0 1 2"));
    const auto labels = window->myView().statusLine().findChildren<QLabel *>();
    EXPECT_TRUE(std::ranges::any_of(labels, [](const QLabel *label) {
        return label->isVisible() && label->text() == QStringLiteral("3 selected");
    }));
    window->files().selectRow(1);
    QTest::keyClick(table, Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(selected(), QStringLiteral("0 1"));
    tree->setFocus();
    EXPECT_TRUE(canRun(Command::selectAll));
    run(Command::selectAll);
    EXPECT_TRUE(tree->selectionModel()->hasSelection());
}

TEST_F(Keyboard, StaysWhereItWasLeft)
{
    table->setFocus();
    run(Command::toggleSidebar);
    ASSERT_TRUE(spinUntil([this] { return !table->isVisible(); }));
    EXPECT_TRUE(window->myView().info().isAncestorOf(QApplication::focusWidget()));
    run(Command::selectExtendedTab);
    EXPECT_TRUE(window->myView().info().isAncestorOf(QApplication::focusWidget()));
    run(Command::toggleSidebar);
    EXPECT_TRUE(spinUntil([this] { return table->hasFocus(); })) << "it is back";

    run(Command::selectComparisonTab);
    EXPECT_FALSE(table->isVisible());
    run(Command::selectExtendedTab);
    EXPECT_TRUE(table->hasFocus()) << "nobody moved it meanwhile";
    tree->setFocus();
    run(Command::selectGeneralTab);
    run(Command::toggleSidebar);
    ASSERT_TRUE(spinUntil([this] { return !table->isVisible(); }));
    run(Command::toggleSidebar);
    ASSERT_TRUE(spinUntil([this] { return table->isVisible(); }));
    run(Command::selectExtendedTab);
    EXPECT_TRUE(tree->hasFocus());
}

TEST_F(Keyboard, IsToldToReadersOfOneRow)
{
    run(Command::selectExtendedTab);
    tree->setCurrentIndex(tree->model()->index(0, 0));
    table->setFocus();
    EXPECT_EQ(readOut(table), u"matroska.mkv <- movie.mp4 tone.wav"_s);
    EXPECT_FALSE(readOut(tree).contains(u"<-"_s));
    tree->setFocus();
    EXPECT_EQ(readOut(table), u"matroska.mkv movie.mp4 tone.wav"_s);
    EXPECT_EQ(readOut(tree).count(u"<-"_s), 1);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(table);
    EXPECT_EQ(list->tableInterface()->selectedCells(), QList{list->child(0)});
    EXPECT_EQ(list->tableInterface()->cellAt(2, 0), list->child(2));

    table->setFocus();
    window->files().removeSelectedItems();
    // Views tell this themselves where a screen reader runs.
    QAccessibleTableModelChangeEvent removal(table, QAccessibleTableModelChangeEvent::RowsRemoved);
    list->tableInterface()->modelChange(&removal);
    EXPECT_EQ(readOut(table), u"movie.mp4 <- tone.wav"_s);
    auto *comparison = window->findChild<ComparisonView *>();
    run(Command::selectComparisonTab);
    comparison->table().setFocus();
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(comparison)->state().focused) << "but its table";
}

TEST_F(Keyboard, ArrowsStayInTheirPane)
{
    show({"none.wav", "tone.wav"});
    QPushButton *retry = nullptr;
    for (QPushButton *button : window->myView().info().findChildren<QPushButton *>()) {
        if (button->isVisible())
            retry = button;
    }
    ASSERT_TRUE(retry);
    retry->setFocus();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Right}) {
        QTest::keyClick(retry, key);
        EXPECT_TRUE(window->myView().info().isAncestorOf(QApplication::focusWidget())) << key;
    }
    EXPECT_EQ(selected(), QStringLiteral("0"));
}

TEST_F(Keyboard, LeavesCopyToWhoHadItBeforeTheMenuBar)
{
    table->setFocus();
    ASSERT_TRUE(canRun(Command::copy));
    window->menuBar()->setFocus(Qt::MenuBarFocusReason);
    Q_EMIT window->files().stateDidChange();
    EXPECT_TRUE(canRun(Command::copy));
    run(Command::selectExtendedTab);
    tree->setFocus();
    EXPECT_FALSE(canRun(Command::copy)) << "nothing is selected there";
}

TEST_F(Keyboard, ADropWithControlHeldSelectsOneRow)
{
    QTest::keyPress(window->windowHandle(), Qt::Key_Control, Qt::ControlModifier);
    ASSERT_EQ(QGuiApplication::keyboardModifiers(), Qt::ControlModifier);
    table->setFocus();
    const auto drop = [this](const char *name, std::size_t count) {
        window->files().processAdditionalFilesAndSelectFirst(
            {test::sample(QLatin1String(name)), test::sample(QStringLiteral("tone.wav"))});
        EXPECT_TRUE(spinUntil([&] { return window->files().filelist().size() == count; }));
        QApplication::processEvents();
        return selected();
    };
    EXPECT_EQ(drop("movie.mp4", 5), QStringLiteral("3"));
    table->selectionModel()->select({table->model()->index(0, 0), table->model()->index(4, 0)},
                                    QItemSelectionModel::ClearAndSelect);
    run(Command::removeSelectedItems);
    QApplication::processEvents();
    EXPECT_EQ(drop("movie.mp4", 2), QStringLiteral("0")) << "into an empty list";
    const QPoint second = table->visualRect(table->model()->index(1, 0)).center();
    QContextMenuEvent menu(QContextMenuEvent::Mouse, second, table->viewport()->mapToGlobal(second));
    QApplication::sendEvent(table->viewport(), &menu);
    EXPECT_EQ(selected(), QStringLiteral("0")) << "a menu beside it selects nothing";
    QTest::keyRelease(window->windowHandle(), Qt::Key_Control, Qt::NoModifier);
}

TEST_F(Keyboard, TabReachesWhatEveryPaneOffers)
{
    const auto *comparison = window->findChild<ComparisonView *>();
    for (const Command tab : {Command::selectComparisonTab, Command::selectGeneralTab,
                              Command::selectExtendedTab, Command::selectCustomTab}) {
        run(tab);
        ASSERT_TRUE(spinUntil([&] { return tab != Command::selectComparisonTab || !comparison->isEmpty(); }));
        std::vector<QWidget *> missing;
        for (auto *widget : window->findChildren<QWidget *>()) {
            const auto *button = qobject_cast<QAbstractButton *>(widget);
            // Of several that exclude each other the chosen one stands for all.
            const bool isOther = button && button->group() && !button->isChecked();
            if (widget->focusPolicy() & Qt::TabFocus && widget->isVisible() && widget->isEnabled()
                && !isOther)
                missing.push_back(widget);
        }
        ASSERT_FALSE(missing.empty());
        for (std::size_t step = missing.size() + 2; step > 0; --step) {
            std::erase(missing, QApplication::focusWidget());
            QTest::keyClick(window->windowHandle(), Qt::Key_Tab);
        }
        // The button that stops reading goes with the last file.
        std::erase_if(missing, [](const QWidget *widget) { return !widget->isVisible(); });
        for (const QWidget *widget : missing)
            ADD_FAILURE() << widget->metaObject()->className() << ' ' << qPrintable(widget->accessibleName());
    }
}

TEST_F(Keyboard, IsInTheTableOfAComparisonThatComesLater)
{
    const auto *comparison = window->findChild<ComparisonView *>();
    run(Command::selectExtendedTab);
    tree->setFocus();
    run(Command::selectComparisonTab);
    ASSERT_TRUE(spinUntil([comparison] { return !comparison->isEmpty(); }));
    EXPECT_TRUE(window->findChild<ComparisonTable *>()->hasFocus());
}

} // namespace quorvin
