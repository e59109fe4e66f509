// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonTable.h"

#include "shell/compare/LetterWidths.h"
#include "shell/compare/ParameterHeader.h"
#include "support/Events.h"
#include "support/TestRecords.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QPixmap>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using Direction = ComparisonController::Direction;

namespace {

struct ComparisonTableTest : testing::Test {
    ComparisonController content;
    ComparisonTable table{content};

    void SetUp() override
    {
        content.setTextColor(Qt::black);
        table.resize(600, 300);
        table.setLook({QFont(), 20, true, true});
        table.show();
    }
    /// `parameters` of each file; file 0 is "/f/0".
    void show(const std::vector<QStringList> &parameters)
    {
        std::vector<QuorvinDataPtr> records;
        QStringList paths;
        for (const QStringList &own : parameters) {
            paths.append(u"/f/%1"_s.arg(paths.size()));
            records.push_back(test::recordOf(own));
        }
        table.change([&] { content.setContent(comparisonRows(records), paths); });
    }
    /// So many rows in sections of ten, in two files that differ in each third.
    void showMany(int rows, const QString &first = {})
    {
        std::vector<QStringList> files(2);
        for (std::size_t file = 0; file < files.size(); ++file) {
            if (!first.isEmpty())
                files[file].append(u"First/first="_s + first);
            for (int row = 0; row < rows; ++row)
                files[file].append(u"S%1/p%2=%3"_s.arg(row / 10).arg(row).arg(
                    row % 3 == 0 ? u"value %1"_s.arg(file) : u"same"_s));
        }
        show(files);
    }
    QString current() const { return content.rowAt(table.currentIndex().row())->key; }
    void select(const QString &key)
    {
        int row = 0;
        while (content.rowAt(row) && content.rowAt(row)->key != key)
            ++row;
        ASSERT_TRUE(content.rowAt(row)) << key.toStdString();
        table.setCurrentIndex(content.index(row, 1));
    }
};

} // namespace

TEST_F(ComparisonTableTest, KeysPassByHeadings)
{
    showMany(30);
    select(u"p9"_s);
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_EQ(current(), u"p10"_s);
    QTest::keyClick(&table, Qt::Key_Up);
    EXPECT_EQ(current(), u"p9"_s);
    QTest::keyClick(&table, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(current(), u"p0"_s);
    QTest::keyClick(&table, Qt::Key_Up);
    EXPECT_EQ(current(), u"p0"_s);
    EXPECT_EQ(table.verticalScrollBar()->value(), 0) << "the heading above it is in sight";
    QTest::keyClick(&table, Qt::Key_Right);
    EXPECT_EQ(table.currentFile(), 1);
    table.selectAll();
    EXPECT_EQ(table.selectedRows().size(), 30U) << "headings are not selected";
}

TEST_F(ComparisonTableTest, RowsAreAsHighAsTheirHighestCell)
{
    const QString words = u"several words that take a number of lines "_s.repeated(4);
    show({{u"A/short=x"_s, u"A/long="_s + words, u"A/lines=one"_s},
          {u"A/short=y"_s, u"A/long=z"_s, u"A/lines=one\ntwo\nthree"_s}});
    const int line = QFontMetrics(table.font()).height();
    const int plain = table.rowHeight(1);
    EXPECT_GE(plain, 20);
    EXPECT_GT(table.rowHeight(2), plain + 2 * line);
    EXPECT_GE(table.rowHeight(3), 3 * line);
    const int before = table.rowHeight(2);
    table.setColumnWidth(1, 90);
    EXPECT_GT(table.rowHeight(2), before) << "at once";
    table.setLook({QFont(), 20, false, true});
    EXPECT_EQ(table.rowHeight(2), plain);
    EXPECT_EQ(table.rowHeight(3), plain);
}

TEST_F(ComparisonTableTest, WhatIsLookedAtStaysWhenFilesFinish)
{
    showMany(200);
    select(u"p105"_s);
    table.scrollTo(table.currentIndex(), QAbstractItemView::PositionAtCenter);
    table.horizontalScrollBar()->setValue(20);
    const int top = table.visualRect(table.currentIndex()).top();
    const int left = table.horizontalScrollBar()->value();
    table.setFocus();
    showMany(200, u"a long value of many words "_s.repeated(8));
    EXPECT_EQ(current(), u"p105"_s);
    EXPECT_EQ(table.selectedRows().size(), 1U);
    EXPECT_EQ(table.visualRect(table.currentIndex()).top(), top);
    EXPECT_EQ(table.horizontalScrollBar()->value(), left);
    table.change([this] { content.setFilter(ComparisonFilter::Different); });
    EXPECT_EQ(current(), u"p105"_s);
    table.change([this] { content.setFilter(ComparisonFilter::Equal); });
    EXPECT_TRUE(table.selectedRows().empty()) << "it is not among the equal ones";
}

TEST_F(ComparisonTableTest, WhatWasMeasuredStaysWhileOneScrollsUp)
{
    std::vector<QStringList> files(2);
    for (int row = 0; row < 200; ++row) {
        for (QStringList &file : files)
            file.append(u"A/p%1=%2"_s.arg(row).arg(u"漢字 words "_s.repeated(1 + row % 40)));
    }
    show(files);
    table.verticalScrollBar()->setValue(table.verticalScrollBar()->maximum());
    for (int step = 0; step < 60; ++step) {
        const int row = table.rowAt(0) + 1;
        const int before = table.rowViewportPosition(row);
        table.verticalScrollBar()->setValue(table.verticalScrollBar()->value() - 40);
        EXPECT_EQ(table.rowViewportPosition(row), before + 40) << step;
    }
}

TEST_F(ComparisonTableTest, WalksHitsAndDifferences)
{
    show({{u"A/width=1"_s, u"A/codec=avc"_s, u"B/width=3"_s},
          {u"A/width=2"_s, u"A/codec=avc"_s, u"B/width=3"_s}});
    EXPECT_TRUE(table.showNextDifference(Direction::Forward));
    EXPECT_EQ(current(), u"width"_s);
    EXPECT_TRUE(table.showNextDifference(Direction::Forward));
    EXPECT_EQ(table.currentIndex().row(), 1) << "the only one, from the other end";

    table.setSoughtText(u"WIDTH"_s);
    std::vector<int> rows;
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(table.findNext(Direction::Forward));
        rows.push_back(table.currentIndex().row());
        EXPECT_GT(table.currentIndex().column(), 0) << "names are no cells";
    }
    EXPECT_EQ(rows, (std::vector{4, 1, 4})) << "from the current cell on";
    table.setSoughtText(u"avc"_s);
    EXPECT_TRUE(table.findNext(Direction::Backward));
    EXPECT_EQ(table.currentIndex(), content.index(2, 2));
    EXPECT_TRUE(table.findNext(Direction::Backward));
    EXPECT_EQ(table.currentIndex(), content.index(2, 1));
    table.setSoughtText(u"none such"_s);
    EXPECT_FALSE(table.findNext(Direction::Forward));
    EXPECT_EQ(table.currentIndex(), content.index(2, 1));
}

TEST_F(ComparisonTableTest, ADraggedColumnTellsTheOrderOfAll)
{
    show({{u"A/a=0"_s}, {u"A/a=1"_s}, {u"A/a=2"_s}});
    std::vector<int> order;
    QObject::connect(&table, &ComparisonGrid::filesMoved,
                     [&](const std::vector<int> &told) { order = told; });
    table.setColumnWidth(3, 120);
    table.horizontalHeader()->moveSection(3, 1);
    ASSERT_TRUE(test::spinUntil([&] { return !order.empty(); }));
    EXPECT_EQ(order, (std::vector{2, 0, 1}));
    EXPECT_EQ(table.columnWidths().width(0), 120) << "it takes its width along";
    EXPECT_EQ(table.columnWidths().width(2), ColumnWidths::kUsual);
    show({{u"A/a=2"_s}, {u"A/a=0"_s}, {u"A/a=1"_s}});
    EXPECT_EQ(table.horizontalHeader()->visualIndex(1), 1);
    EXPECT_EQ(table.columnWidth(1), 120);
}

TEST_F(ComparisonTableTest, AClickOnAFileMarksItAndOneOnItsCrossClosesIt)
{
    show({{u"A/a=0"_s}, {u"A/a=1"_s}});
    QSignalSpy marked(&table, &ComparisonTable::referenceWanted);
    QSignalSpy closed(&table, &ComparisonTable::closeWanted);
    QWidget *header = table.horizontalHeader()->viewport();
    const int middle = header->height() / 2;
    const int left = table.columnViewportPosition(2);
    QTest::mouseClick(header, Qt::LeftButton, {}, {left + 30, middle});
    ASSERT_EQ(marked.size(), 1);
    EXPECT_EQ(marked[0][0], 1);
    QTest::mouseClick(header, Qt::LeftButton, {}, {left + table.columnWidth(2) - 10, middle});
    ASSERT_EQ(closed.size(), 1);
    EXPECT_EQ(closed[0][0], 1);
    EXPECT_EQ(marked.size(), 1);
    EXPECT_TRUE(table.selectedRows().empty());
}

TEST_F(ComparisonTableTest, DrawsWhatDiffersFromTheReferenceHeavier)
{
    show({{u"A/a=value"_s, u"A/b=same"_s}, {u"A/a=other"_s, u"A/b=same"_s}});
    const auto picture = [this](int row, int column) {
        return table.viewport()
            ->grab(table.visualRect(content.index(row, column)).adjusted(0, 0, -2, -2))
            .toImage();
    };
    const QImage reference = picture(1, 1);
    const QImage other = picture(1, 2);
    const QImage same = picture(2, 2);
    table.change([this] { content.setReferenceFile(0); });
    EXPECT_EQ(picture(1, 1), reference);
    EXPECT_NE(picture(1, 2), other);
    EXPECT_EQ(picture(2, 2), same);
    content.setHighlightValue(10);
    content.setHighlightDifferences(true);
    EXPECT_NE(picture(2, 2), same) << "equal rows stand back";
    EXPECT_NE(picture(2, 2).copy(6, 3, 20, 14), picture(2, 2).copy(60, 3, 20, 14)) << "and are seen";
    EXPECT_EQ(picture(1, 1), reference);
    content.setHighlightDifferences(false);
    EXPECT_EQ(picture(2, 2), same) << "and no dimmed cell stays behind";
}

TEST_F(ComparisonTableTest, DrawsNamesAsHeavyAsTheyAreToBe)
{
    show({{u"A/a name=value"_s}, {u"A/a name=other"_s}});
    auto *names = table.findChild<ParameterHeader *>();
    const QImage light = names->grab().toImage();
    table.setLook({QFont(), 20, true, true, true});
    EXPECT_NE(names->grab().toImage(), light);
}

TEST(LetterWidths, AreNeverTooSmallForOneLine)
{
    const QFont font;
    const LetterWidths widths(font);
    const QFontMetrics metrics(font);
    for (const QString &text : {u"AVC"_s, u"1 412 kb/s, 48.0 kHz"_s, u"ÄÖÜ straße"_s, u"漢字漢字漢字"_s}) {
        const int real = metrics.horizontalAdvance(text);
        EXPECT_EQ(widths.linesIn(text, 2 * real).count, 1) << text.toStdString();
        EXPECT_FALSE(widths.linesIn(text, real / 2).isExact) << text.toStdString();
    }
    EXPECT_TRUE(widths.linesIn(u"AVC"_s, 100).isExact);
    EXPECT_FALSE(widths.linesIn(u"a\nb"_s, 100).isExact);
    EXPECT_EQ(widths.linesIn(u"a\nb\nc"_s, 100).count, 3);
}

} // namespace quorvin
