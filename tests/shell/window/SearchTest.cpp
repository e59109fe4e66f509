// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistPane.h"
#include "shell/filelist/RuleEditor.h"
#include "shell/filelist/RuleField.h"
#include "shell/info/ExtendedPane.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/outline/HitPlaces.h"
#include "shell/outline/WatchedParameter.h"
#include "shell/window/FindField.h"
#include "shell/window/SampleWindow.h"
#include "shell/window/StatusLine.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

/// A window in which things are looked for.
struct SearchWindow : test::SampleWindow {
    InfoView *info = &window->myView().info();
    ExtendedOutline *tree = &info->outline();
    FindField *globalField = window->findChild<FindField *>();
    FilelistFiltering *filtering = &window->files().filtering();

    /// The field that is on the screen in that part of the window; null without one.
    static QLineEdit *fieldIn(const QWidget &part)
    {
        for (QLineEdit *field : part.findChildren<QLineEdit *>()) {
            if (field->isVisible())
                return field;
        }
        return nullptr;
    }
    static QStringList textsIn(const QWidget &part)
    {
        // What was added to a layout is on the screen a moment later.
        QApplication::processEvents();
        QStringList texts;
        for (const QLabel *label : part.findChildren<QLabel *>()) {
            if (label->isVisible() && !label->text().isEmpty())
                texts.append(label->text());
        }
        return texts;
    }
    bool awaitRows(int count) const
    {
        return spinUntil([&] { return table->model()->rowCount() == count && !filtering->isSearching(); });
    }
    QString current() const { return window->windowTitle(); }
    /// The selected row of the tree, as its name and value.
    QString selectedRow() const
    {
        const ExtTreeItem *item = tree->selectedItem();
        return item ? item->extValue() : QString();
    }
    int leaves() const
    {
        int count = 0;
        for (int group = 0; group < tree->content().rowCount(); ++group)
            count += tree->content().rowCount(tree->content().index(group, 0));
        return count;
    }
    /// The first row whose name or value has the text becomes the selected one.
    void selectRow(const QString &text) const
    {
        const QModelIndex row = nextHit(tree->content(), SearchText(text), {}, false);
        ASSERT_TRUE(row.isValid()) << text.toStdString();
        tree->setCurrentIndex(row);
    }
    /// The button that readers call so; null when it is not on the screen.
    QToolButton *button(const QString &name) const
    {
        QApplication::processEvents();
        for (QToolButton *button : window->findChildren<QToolButton *>()) {
            if (button->accessibleName() == name && button->isVisible())
                return button;
        }
        return nullptr;
    }
};

} // namespace

TEST_F(SearchWindow, TheBarFindsInTheTreeAndGoesWithEscape)
{
    EXPECT_FALSE(canRun(Command::performExtFind)) << "there is no tree on this tab";
    run(Command::selectExtendedTab);
    const int all = leaves();
    tree->collapse(tree->content().index(0, 0));
    run(Command::performExtFind);
    QLineEdit *field = fieldIn(info->extended());
    ASSERT_TRUE(field && field->hasFocus());
    QTest::keyClicks(field, u"FORMAT"_s);
    QTest::keyClick(field, Qt::Key_Return);
    const int hits = leaves();
    EXPECT_GT(hits, 0);
    EXPECT_LT(hits, all);
    EXPECT_TRUE(textsIn(info->extended()).contains(u"%1 hits"_s.arg(hits)));
    for (int group = 0; group < tree->content().rowCount(); ++group)
        EXPECT_TRUE(tree->isExpanded(tree->content().index(group, 0))) << "every hit shows";

    window->files().selectRow(1);
    EXPECT_LT(leaves(), all) << "the search goes on with the next file";
    window->files().selectRow(0);
    tree->setFocus();
    run(Command::performExtFind);
    EXPECT_TRUE(field->hasFocus());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(tree->hasFocus());
    EXPECT_EQ(leaves(), all);
    EXPECT_FALSE(tree->isExpanded(tree->content().index(0, 0))) << "what the user closed is closed again";
    EXPECT_TRUE(spinUntil([field] { return !field->isVisible(); }));
    run(Command::performExtFind);
    EXPECT_EQ(field->text(), u"FORMAT"_s);
    EXPECT_EQ(leaves(), hits);
    QTest::keyClicks(field, u"xyz"_s);
    EXPECT_TRUE(spinUntil([this] { return leaves() == 0; })) << "without Return, after a pause";
}

TEST_F(SearchWindow, ReturnWalksTheHitsAndEscapeStaysWhereOneIs)
{
    run(Command::selectExtendedTab);
    selectRow(u"Width"_s);
    const QString before = selectedRow();
    run(Command::performExtFind);
    QLineEdit *field = fieldIn(info->extended());
    QTest::keyClicks(field, u"zzz"_s);
    ASSERT_TRUE(spinUntil([this] { return leaves() == 0; }));
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(selectedRow(), before) << "no other was chosen";

    run(Command::performExtFind);
    QTest::keyClicks(field, u"format"_s);
    QTest::keyClick(field, Qt::Key_Return);
    const QString first = selectedRow();
    EXPECT_TRUE(first.contains(u"format"_s, Qt::CaseInsensitive)) << first.toStdString();
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_NE(selectedRow(), first);
    QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(selectedRow(), first);
    EXPECT_TRUE(field->hasFocus());
    // What its group has before it is not in the narrowed tree.
    QTest::keyClick(field, Qt::Key_Return);
    const QString chosen = selectedRow();
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(tree->hasFocus());
    EXPECT_EQ(selectedRow(), chosen);
    EXPECT_TRUE(tree->viewport()->rect().intersects(tree->visualRect(tree->currentIndex())));
}

TEST_F(SearchWindow, HitsAreWalkedThroughAllFiles)
{
    run(Command::selectExtendedTab);
    run(Command::performExtFind);
    QTest::keyClicks(fieldIn(info->extended()), u"pcm"_s);
    ASSERT_EQ(current(), u"matroska.mkv"_s);
    QTest::keyClick(fieldIn(info->extended()), Qt::Key_Return);
    ASSERT_TRUE(spinUntil([this] { return current() == u"tone.wav"_s && !selectedRow().isEmpty(); }));
    const QString first = selectedRow();
    EXPECT_TRUE(first.contains(u"pcm"_s, Qt::CaseInsensitive)) << first.toStdString();
    run(Command::findNext);
    const QString second = selectedRow();
    EXPECT_NE(second, first) << "the next one in the file";
    run(Command::findPrevious);
    EXPECT_EQ(selectedRow(), first);
    run(Command::selectGeneralTab);
    run(Command::findNext);
    EXPECT_EQ(window->currentTab(), Tab::Extended) << "from any tab";
    EXPECT_EQ(selectedRow(), second);
    run(Command::findPrevious);
    run(Command::findPrevious);
    EXPECT_TRUE(
        spinUntil([this] { return window->myView().statusLine().saying() == u"No other file has “pcm”"_s; }));
    EXPECT_EQ(current(), u"tone.wav"_s);
    EXPECT_NE(selectedRow(), first) << "round to the last one";
}

TEST_F(SearchWindow, TheFieldOfTheToolBarNarrowsTheList)
{
    run(Command::performProjectFind);
    ASSERT_TRUE(globalField->hasFocus());
    QTest::keyClicks(globalField, u"pcm"_s);
    QTest::keyClick(globalField, Qt::Key_Return);
    ASSERT_TRUE(awaitRows(1));
    EXPECT_EQ(current(), u"tone.wav"_s);
    EXPECT_EQ(textsIn(window->myView().list()), (QStringList{u"Contains “pcm”"_s, u"1 of 3 files"_s}));
    QTest::keyClick(globalField, Qt::Key_Escape);
    EXPECT_TRUE(table->hasFocus());
    EXPECT_EQ(globalField->text(), u"pcm"_s);

    run(Command::selectExtendedTab);
    run(Command::findNext);
    EXPECT_TRUE(selectedRow().contains(u"pcm"_s, Qt::CaseInsensitive)) << "its hits are walked";
    run(Command::performProjectFind);
    QTest::keyClicks(globalField, u"zzz"_s);
    EXPECT_TRUE(awaitRows(0)) << "after a pause";
    EXPECT_TRUE(textsIn(*info).contains(u"No file passes the filter"_s));
    EXPECT_TRUE(canRun(Command::showAllFiles));
    for (QPushButton *button : info->findChildren<QPushButton *>()) {
        if (button->isVisible())
            button->click();
    }
    EXPECT_TRUE(awaitRows(3));
    EXPECT_EQ(globalField->text(), QString());
    EXPECT_TRUE(textsIn(window->myView().list()).isEmpty()) << "nothing narrows";
    EXPECT_FALSE(canRun(Command::showAllFiles));
}

TEST_F(SearchWindow, NamesNarrowTheListWithEachKey)
{
    run(Command::filterByName);
    QLineEdit *field = fieldIn(window->myView().list());
    ASSERT_TRUE(field && field->hasFocus());
    QTest::keyClicks(field, u"MO"_s);
    EXPECT_TRUE(awaitRows(1));
    EXPECT_EQ(textsIn(window->myView().list()), (QStringList{u"Name has “MO”"_s, u"1 of 3 files"_s}));
    run(Command::toggleHideUnknownFiles);
    EXPECT_TRUE(window->commands().action(Command::toggleHideUnknownFiles)->isChecked());
    EXPECT_TRUE(settings.boolean(Setting::hideUnknownFiles));
    QToolButton *remove = button(u"Remove filter: Name has “MO”"_s);
    ASSERT_TRUE(remove);
    remove->click();
    EXPECT_EQ(field->text(), QString());
    EXPECT_EQ(textsIn(window->myView().list()), (QStringList{u"Known files only"_s, u"3 of 3 files"_s}));

    run(Command::filterByName);
    QTest::keyClicks(field, u"w"_s);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(field->text(), QString());
    EXPECT_TRUE(field->hasFocus());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(table->hasFocus());
    EXPECT_FALSE(field->isVisible());
    EXPECT_TRUE(application.openEmptyWindow()->files().filtering().criteria().hideUnknownFiles)
        << "as new windows have it";
}

TEST_F(SearchWindow, WatchedParametersStayFromFileToFile)
{
    EXPECT_FALSE(canRun(Command::toggleWatch));
    run(Command::selectExtendedTab);
    tree->setCurrentIndex(tree->content().index(0, 0));
    EXPECT_FALSE(canRun(Command::toggleWatch)) << "a group";
    selectRow(u"Width"_s);
    run(Command::toggleWatch);
    EXPECT_TRUE(window->commands().action(Command::toggleWatch)->isChecked());
    EXPECT_EQ(textsIn(info->extended()), (QStringList{u"Video: Width"_s, u"320 pixels"_s}));
    window->files().selectRow(2);
    EXPECT_EQ(textsIn(info->extended()), (QStringList{u"Video: Width"_s, u"not in this file"_s}));
    run(Command::performExtFind);
    QTest::keyClicks(fieldIn(info->extended()), u"pcm"_s);
    QTest::keyClick(fieldIn(info->extended()), Qt::Key_Return);
    window->files().selectRow(1);
    EXPECT_TRUE(textsIn(info->extended()).contains(u"320 pixels"_s)) << "whatever the tree is narrowed to";
    EXPECT_EQ(watchedFromText(settings.string(Setting::watchedParameters)).size(), 1U);
    button(u"Watch “Video: Width” no more"_s)->click();
    EXPECT_EQ(settings.string(Setting::watchedParameters), QString());
    EXPECT_FALSE(textsIn(info->extended()).contains(u"320 pixels"_s));
}

TEST_F(SearchWindow, RowsMakeRulesThatTheEditorShows)
{
    run(Command::selectExtendedTab);
    EXPECT_FALSE(canRun(Command::showOnlyWithValue));
    window->files().selectRow(2);
    selectRow(u"PCM"_s);
    run(Command::showOnlyWithValue);
    ASSERT_TRUE(awaitRows(1));
    EXPECT_EQ(current(), u"tone.wav"_s);
    const QString rule = textsIn(window->myView().list()).value(0);
    EXPECT_EQ(rule, u"[Container/Format settings] = 'PcmWaveformat'"_s);

    run(Command::toggleFilelistFilter);
    QLineEdit *text = window->findChild<RuleEditor *>()->findChild<RuleField *>();
    ASSERT_TRUE(text->isVisible() && text->hasFocus());
    EXPECT_EQ(text->text(), rule);
    EXPECT_TRUE(textsIn(*window->findChild<RuleEditor *>()).contains(u"1 of 3 files match the rule"_s));
    text->selectAll();
    QTest::keyClicks(text, u"NOT fileType = 'Audio'"_s);
    ASSERT_TRUE(awaitRows(2));
    EXPECT_EQ(textsIn(window->myView().list()).value(0), u"NOT fileType = 'Audio'"_s);
    QTest::keyClick(text, Qt::Key_Escape);
    EXPECT_FALSE(text->isVisible());
    EXPECT_TRUE(table->hasFocus());

    window->files().selectRow(0);
    selectRow(u"Width"_s);
    run(Command::showOnlyWithoutParameter);
    ASSERT_TRUE(awaitRows(1));
    EXPECT_EQ(current(), u"tone.wav"_s);
    button(u"Remove filter: [Video/Width] IS MISSING"_s)->click();
    EXPECT_TRUE(awaitRows(3));
    EXPECT_EQ(text->text(), QString()) << "the editor follows";
}

} // namespace quorvin
