// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/ExtendedOutline.h"
#include "shell/outline/OutlineCopy.h"
#include "shell/outline/OutlineHeader.h"
#include "shell/outline/StickyGroup.h"

#include <QApplication>
#include <QClipboard>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

/// A group of so many parameters, named "a0", "a1" and so on, but for those left out.
ExtTreeItemPtr group(const QString &name, int count, const QStringList &missing = {})
{
    ExtTreeItems leaves;
    for (int i = 0; i < count; ++i) {
        const QString leaf = name.toLower() + QString::number(i);
        if (!missing.contains(leaf))
            leaves.push_back(ExtTreeItem::itemWithKey(leaf, leaf, QString::number(i)));
    }
    return ExtTreeItem::groupTreeWithKey(name, name, leaves, 0);
}

/// A tree on the screen, as large as a small window.
struct Outline : testing::Test {
    ExtendedOutline outline;

    Outline()
    {
        outline.setRowHeight(20);
        outline.resize(600, 300);
        outline.show();
    }
    void settle() const
    {
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
    }
    QModelIndex row(const QString &name) const
    {
        const auto found = outline.model()->match(outline.model()->index(0, 0), Qt::DisplayRole, name, 1,
                                                  Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QModelIndex() : found.front();
    }
    int topOf(const QString &name) const { return outline.visualRect(row(name)).top(); }
    int heightOf(const QString &name) const
    {
        settle();
        return outline.visualRect(row(name)).height();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&outline, static_cast<Qt::Key>(key), modifiers);
    }
};

} // namespace

TEST_F(Outline, TheSameRowStaysAtTheSamePlaceFromFileToFile)
{
    outline.setContent({group(QStringLiteral("A"), 40), group(QStringLiteral("B"), 40)});
    settle();
    outline.scrollTo(row(QStringLiteral("b5")), QAbstractItemView::PositionAtTop);
    settle();
    outline.setCurrentIndex(row(QStringLiteral("b9")));
    const int before = topOf(QStringLiteral("b9"));

    outline.setContent(
        {group(QStringLiteral("A"), 7), group(QStringLiteral("C"), 90), group(QStringLiteral("B"), 40)});
    settle();
    EXPECT_EQ(topOf(QStringLiteral("b9")), before) << "the row, not the pixel";
    EXPECT_EQ(outline.currentIndex().data().toString(), QStringLiteral("b9"));
    outline.setContent({});
    outline.setContent({group(QStringLiteral("B"), 40, {QStringLiteral("b9")})});
    settle();
    EXPECT_NEAR(topOf(QStringLiteral("b8")), before, 40)
        << "its neighbour, after a file that was not read yet";
    outline.setContent({group(QStringLiteral("Z"), 40)});
    EXPECT_EQ(outline.verticalScrollBar()->value(), 0) << "nothing of it is here";
    outline.setContent({group(QStringLiteral("A"), 20), group(QStringLiteral("B"), 40)});
    settle();
    EXPECT_EQ(topOf(QStringLiteral("b8")), before - 20) << "and here it is again";
}

TEST_F(Outline, ARowOfANarrowedTreeIsFoundAmongItsNamesakesAgain)
{
    const auto tag = [](const QString &value) {
        return ExtTreeItem::itemWithKey(QStringLiteral("tag"), QStringLiteral("tag"), value);
    };
    const auto tree = [](ExtTreeItems leaves) {
        return ExtTreeItems{
            ExtTreeItem::groupTreeWithKey(QStringLiteral("G"), QStringLiteral("G"), leaves, 0)};
    };
    const ExtTreeItems whole
        = tree({tag(QStringLiteral("x")), tag(QStringLiteral("y")), tag(QStringLiteral("y"))});
    outline.setContent(whole);
    outline.setContent(tree({tag(QStringLiteral("y")), tag(QStringLiteral("y"))}), true, true);
    const QModelIndex group = outline.model()->index(0, 0);
    outline.setCurrentIndex(outline.model()->index(1, 0, group));
    outline.setContent(tree({tag(QStringLiteral("x"))}), true, true);
    outline.setContent(whole, false, true);
    EXPECT_EQ(outline.currentIndex().row(), 2);
    outline.setContent(tree({tag(QStringLiteral("y")), tag(QStringLiteral("x")), tag(QStringLiteral("z"))}));
    EXPECT_EQ(outline.currentIndex().row(), 2) << "in another file by its place among them";
}

TEST_F(Outline, TheGroupOfTheFirstRowStaysInSight)
{
    outline.setContent({group(QStringLiteral("A"), 40), group(QStringLiteral("B"), 40)});
    settle();
    const auto *sticky = outline.findChild<StickyGroup *>();
    EXPECT_TRUE(sticky->isHidden()) << "the group itself is seen";
    outline.scrollTo(row(QStringLiteral("a20")), QAbstractItemView::PositionAtTop);
    EXPECT_TRUE(sticky->isVisible());
    EXPECT_EQ(sticky->y(), outline.viewport()->y());
    outline.scrollTo(row(QStringLiteral("B")), QAbstractItemView::PositionAtTop);
    outline.verticalScrollBar()->setValue(outline.verticalScrollBar()->value() - 10);
    EXPECT_LE(sticky->y(), outline.viewport()->y()) << "pushed out by the next one";

    outline.scrollTo(row(QStringLiteral("a30")), QAbstractItemView::PositionAtTop);
    outline.setCurrentIndex(row(QStringLiteral("a30")));
    press(Qt::Key_Up);
    EXPECT_GE(topOf(QStringLiteral("a29")), sticky->height()) << "the current row is not below it";
    outline.collapseAllIn();
    EXPECT_TRUE(sticky->isHidden());
}

TEST_F(Outline, LongValuesEndInAWordThatOpensThem)
{
    const QString lines = QStringLiteral("line\n").repeated(29) + QStringLiteral("line");
    const ExtTreeItems tree{ExtTreeItem::itemWithName(QStringLiteral("long"), lines),
                            ExtTreeItem::itemWithName(QStringLiteral("other"), lines),
                            ExtTreeItem::itemWithName(QStringLiteral("short"), QStringLiteral("1"))};
    outline.setContent(tree);
    const int cut = heightOf(QStringLiteral("long"));
    const int line = outline.fontMetrics().height();
    EXPECT_NEAR(cut, 13 * line, line) << "twelve lines and the word";

    const auto clickWord = [this](Qt::KeyboardModifiers modifiers) {
        const QRect cell = outline.visualRect(row(QStringLiteral("long")).siblingAtColumn(1));
        QTest::mouseClick(outline.viewport(), Qt::LeftButton, modifiers,
                          QPoint(cell.left() + 10, cell.bottom() - 5));
    };
    clickWord(Qt::NoModifier);
    EXPECT_GT(heightOf(QStringLiteral("long")), 30 * line - 1);
    EXPECT_EQ(heightOf(QStringLiteral("other")), cut);
    outline.setCurrentIndex(row(QStringLiteral("long")));
    press(Qt::Key_Left);
    EXPECT_EQ(heightOf(QStringLiteral("long")), cut);
    press(Qt::Key_Right);
    EXPECT_GT(heightOf(QStringLiteral("long")), cut);
    press(Qt::Key_Return);
    EXPECT_EQ(heightOf(QStringLiteral("long")), cut);
    clickWord(Qt::ControlModifier);
    EXPECT_GT(heightOf(QStringLiteral("other")), cut);
    outline.setContent(tree);
    EXPECT_GT(heightOf(QStringLiteral("other")), cut) << "of the next file too";
    EXPECT_EQ(heightOf(QStringLiteral("short")), 20);
    // Whoever asks for the modifiers gets those of the last event.
    press(Qt::Key_Up);
}

TEST_F(Outline, CopiesInItsOrderWithoutWhatAClosedGroupHides)
{
    outline.setContent(
        {group(QStringLiteral("A"), 2), group(QStringLiteral("B"), 2), group(QStringLiteral("C"), 1)});
    outline.selectAll();
    outline.collapse(row(QStringLiteral("B")));
    outline.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("A\na0: 0\na1: 1\nB\nC\nc0: 0"));
    outline.copyValues();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("0\n1\n0"));
}

TEST_F(Outline, TheBorderGoesByTheWidthUntilItIsDragged)
{
    outline.setContent({group(QStringLiteral("A"), 2)});
    const auto names = [this](int width) {
        outline.resize(width, 300);
        settle();
        return outline.columnWidth(ExtTreeModel::Name);
    };
    EXPECT_EQ(names(300), 120);
    const int middle = names(600);
    EXPECT_EQ(middle, outline.viewport()->width() * 3 / 10);
    EXPECT_EQ(names(2000), 260);
    int chosen = -1;
    QObject::connect(&outline, &ExtendedOutline::namesWidthChosen, [&](int width) { chosen = width; });
    outline.header()->resizeSection(ExtTreeModel::Name, 333);
    EXPECT_EQ(chosen, 333);
    EXPECT_EQ(names(900), 333) << "it stays";
    EXPECT_LT(names(300), 300) << "and leaves room for values";
    EXPECT_EQ(names(900), 333);
    Q_EMIT outline.header()->sectionHandleDoubleClicked(ExtTreeModel::Name);
    EXPECT_EQ(chosen, 0);
    EXPECT_EQ(names(2000), 260);
}

} // namespace quorvin
