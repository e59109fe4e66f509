// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/ComparisonController.h"

#include "support/TestFolder.h"
#include "support/TestRecords.h"

#include <QAbstractItemModelTester>
#include <QItemSelectionModel>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace quorvin {

using namespace Qt::StringLiterals;

namespace {

using Direction = ComparisonController::Direction;

/// Files by their names, each with its parameters.
using Files = QList<std::pair<QString, QStringList>>;

void show(ComparisonController &table, const Files &files)
{
    std::vector<QuorvinDataPtr> records;
    QStringList paths;
    for (const auto &[path, parameters] : files) {
        records.push_back(test::recordOf(parameters));
        paths.append(path);
    }
    table.setContent(comparisonRows(records), paths);
}

QStringList printed(const ComparisonController &table)
{
    QStringList lines;
    for (int row = -1; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells.append(row < 0 ? table.headerData(column, Qt::Horizontal).toString()
                                 : table.index(row, column).data().toString());
        lines.append(cells.join(u'|'));
    }
    return lines;
}

const Files kFiles{{u"/x/a.mov"_s, {u"Video/codec=avc"_s, u"Video/width=320"_s, u"Audio/codec=aac"_s}},
                   {u"/y/b.mov"_s, {u"Video/codec=avc"_s, u"Video/width=640"_s, u"Audio/codec=AVC-A"_s}},
                   {u"/z/c.mov"_s, {u"Video/codec=avc"_s, u"Video/width=320"_s, u"Audio/codec=aac"_s}}};

class ComparisonControllerTest : public testing::Test {
protected:
    void SetUp() override { show(table, kFiles); }

    QModelIndex cell(int row, int column) const { return table.index(row, column); }

    ComparisonController table;
    QAbstractItemModelTester tester{&table, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(ComparisonControllerTest, ShowsARowForEachParameterAndAColumnForEachFile)
{
    EXPECT_EQ(printed(table),
              (QStringList{u"Parameter|a.mov|b.mov|c.mov"_s, u"Video|||"_s, u"CODEC|avc|avc|avc"_s,
                           u"WIDTH|320|640|320"_s, u"Audio|||"_s, u"CODEC|aac|AVC-A|aac"_s}));
    EXPECT_EQ(table.headerData(2, Qt::Horizontal, Qt::ToolTipRole), u"/y/b.mov"_s);
    EXPECT_EQ(table.headerData(2, Qt::Vertical), u"WIDTH"_s);
    EXPECT_FALSE(cell(0, 0).flags().testFlag(Qt::ItemIsSelectable));
    EXPECT_TRUE(cell(1, 0).flags().testFlag(Qt::ItemIsSelectable));
    EXPECT_EQ(cell(0, 0).data(ComparisonController::DifferingRole), 1);
    EXPECT_EQ(cell(0, 0).data(ComparisonController::RowsRole), 2);
    EXPECT_FALSE(cell(1, 0).data(ComparisonController::RowsRole).isValid());
    EXPECT_EQ(table.rowOf(u"Audio"_s, 1, u"codec"_s), 4);
    EXPECT_EQ(table.rowOf(u"Audio"_s, 1, {}), 3);
    EXPECT_EQ(table.rowOf(u"Audio"_s, 2, u"codec"_s), -1);

    table.setContent({}, {u"/x/a.mov"_s});
    EXPECT_EQ(printed(table), QStringList{u"Parameter"_s});
    EXPECT_TRUE(table.contentDescription().isEmpty());
}

TEST_F(ComparisonControllerTest, DimsWhatIsEqualAsFarAsTheSliderSays)
{
    const auto foreground = [&](int row) { return cell(row, 1).data(Qt::ForegroundRole); };
    table.setTextColor(Qt::black);
    table.loadHighlight(false, 7);
    EXPECT_FALSE(foreground(1).isValid());
    table.setHighlightDifferences(true);
    EXPECT_EQ(table.highlightText(), u"70%"_s);
    EXPECT_NEAR(table.reducedColor().alphaF(), 0.3, 0.001);
    EXPECT_EQ(foreground(0), QColor(Qt::black)) << "a heading";
    EXPECT_EQ(foreground(1), table.reducedColor());
    EXPECT_EQ(foreground(2), QColor(Qt::black));
    EXPECT_EQ(table.textColorOf(1, true), QColor(Qt::black));

    for (const auto &[value, alpha] : {std::pair(0, 1.0), {10, 0.0}, {255, 0.0}}) {
        table.setHighlightValue(value);
        EXPECT_NEAR(table.reducedColor().alphaF(), alpha, 0.001);
    }
    table.setHighlightDifferences(false);
    EXPECT_EQ(foreground(1), QColor(Qt::black)) << "a dimmed cell would stay";
}

TEST_F(ComparisonControllerTest, SelectionStaysWithItsFileAndParameter)
{
    QItemSelectionModel selection(&table);
    selection.setCurrentIndex(cell(4, 2), QItemSelectionModel::Select);
    const QSignalSpy resets(&table, &QAbstractItemModel::modelReset);
    const auto current = [&] {
        const QModelIndex at = selection.currentIndex();
        return at.data().toString() + u'@' + table.headerData(at.column(), Qt::Horizontal).toString();
    };

    table.setFilter(ComparisonFilter::Different);
    EXPECT_EQ(printed(table),
              (QStringList{u"Parameter|a.mov|b.mov|c.mov"_s, u"Video|||"_s, u"WIDTH|320|640|320"_s,
                           u"Audio|||"_s, u"CODEC|aac|AVC-A|aac"_s}));
    EXPECT_EQ(current(), u"AVC-A@b.mov"_s);
    table.setFilter(ComparisonFilter::All);
    show(table,
         {{u"/w/n.mov"_s, {u"File/x=1"_s, u"Audio/codec=m"_s, u"Video/width=3"_s}}, kFiles[2], kFiles[1]});
    EXPECT_EQ(
        printed(table),
        (QStringList{u"Parameter|n.mov|c.mov|b.mov"_s, u"File|||"_s, u"X|1||"_s, u"Audio|||"_s,
                     u"CODEC|m|aac|AVC-A"_s, u"Video|||"_s, u"WIDTH|3|320|640"_s, u"CODEC||avc|avc"_s}));
    EXPECT_EQ(current(), u"AVC-A@b.mov"_s);
    EXPECT_TRUE(selection.isSelected(selection.currentIndex()));
    EXPECT_EQ(resets.count(), 0);

    table.setFilter(ComparisonFilter::Equal);
    EXPECT_EQ(table.rowCount(), 0);
    show(table, kFiles);
    EXPECT_EQ(table.rowCount(), 2);
}

TEST_F(ComparisonControllerTest, AnyContentFollowsAnyOther)
{
    std::mt19937 random(20261121);
    for (int round = 0; round < 60; ++round) {
        Files files;
        const auto count = static_cast<int>(random() % 5);
        for (int file = 0; file < count; ++file) {
            QStringList parameters;
            for (int i = 0; i < 12; ++i)
                parameters.append(u"S%1/k%2=%3"_s.arg(random() % 3).arg(random() % 5).arg(random() % 2));
            std::ranges::sort(parameters, {}, [](const QString &line) { return line.left(2); });
            files.append({u"/f%1"_s.arg(random() % 4), parameters});
        }
        table.setFilter(static_cast<ComparisonFilter>(random() % 3));
        show(table, files);
        ComparisonController fresh;
        fresh.setFilter(table.filter());
        show(fresh, files);
        EXPECT_EQ(printed(table), printed(fresh)) << round;
    }
}

TEST_F(ComparisonControllerTest, OthersAreHeldAgainstTheReference)
{
    const auto differs = [&](int row, int column) {
        return cell(row, column).data(ComparisonController::DiffersFromReferenceRole).toBool();
    };
    EXPECT_FALSE(differs(2, 2));
    table.setReferenceFile(1);
    EXPECT_TRUE(differs(2, 1) && differs(2, 3) && differs(4, 1));
    EXPECT_FALSE(differs(2, 2) || differs(2, 0) || differs(1, 1) || differs(0, 1));
    EXPECT_TRUE(table.headerData(2, Qt::Horizontal, ComparisonController::ReferenceRole).toBool());
    EXPECT_FALSE(table.headerData(1, Qt::Horizontal, ComparisonController::ReferenceRole).toBool());

    show(table, {kFiles[1], kFiles[0]});
    EXPECT_EQ(table.referenceFile(), 0);
    show(table, {kFiles[0]});
    EXPECT_EQ(table.referenceFile(), std::nullopt);
}

TEST_F(ComparisonControllerTest, ReadersMeetNoEmptyCellAndWhatIsDrawnAsWell)
{
    show(table, {kFiles[0], {u"/y/b.mov"_s, {u"Video/codec=avc"_s}}});
    table.setReferenceFile(0);
    const auto read
        = [this](int row, int column) { return cell(row, column).data(Qt::AccessibleTextRole).toString(); };
    EXPECT_EQ(table.headerData(0, Qt::Vertical, Qt::AccessibleTextRole), u"Video, 1 of 2 differ"_s);
    EXPECT_EQ(read(0, 2), u"Video, 1 of 2 differ"_s) << "it stands over all columns";
    EXPECT_EQ(table.headerData(2, Qt::Vertical, Qt::AccessibleTextRole), u"WIDTH"_s);
    EXPECT_EQ((QStringList{read(2, 0), read(2, 1), read(2, 2)}),
              (QStringList{u"WIDTH"_s, u"320"_s, u"nothing"_s}));
    EXPECT_EQ(cell(2, 2).data(Qt::AccessibleDescriptionRole), u"differs from the reference"_s);
    EXPECT_FALSE(cell(2, 1).data(Qt::AccessibleDescriptionRole).isValid());
}

TEST_F(ComparisonControllerTest, HitsAndDifferencesAreWalkedInTurn)
{
    EXPECT_EQ(table.numberOfHits(u"avc"_s), 4);
    const QList<std::pair<int, int>> hits{{1, 1}, {1, 2}, {1, 3}, {4, 2}};
    QModelIndex at;
    for (int i = 0; i < 5; ++i) {
        at = table.find(u"avc"_s, at, Direction::Forward);
        EXPECT_EQ(std::pair(at.row(), at.column()), hits[i % 4]);
    }
    at = {};
    for (int i = 3; i > -2; --i) {
        at = table.find(u"aVc"_s, at, Direction::Backward);
        EXPECT_EQ(std::pair(at.row(), at.column()), hits[(i + 4) % 4]);
    }
    for (const QString &text : {u"video"_s, u"nothing"_s, QString()})
        EXPECT_FALSE(table.find(text, {}, Direction::Forward).isValid()) << text.toStdString();

    EXPECT_EQ(table.nextDifference(-1, Direction::Forward), 2);
    EXPECT_EQ(table.nextDifference(2, Direction::Forward), 4);
    EXPECT_EQ(table.nextDifference(4, Direction::Forward), 2);
    EXPECT_EQ(table.nextDifference(-1, Direction::Backward), 4);
    EXPECT_EQ(table.nextDifference(2, Direction::Backward), 4);
    table.setFilter(ComparisonFilter::Equal);
    EXPECT_EQ(table.nextDifference(-1, Direction::Forward), -1);
}

TEST_F(ComparisonControllerTest, GivesAwayWhatIsShown)
{
    table.setFilter(ComparisonFilter::Different);
    EXPECT_EQ(
        table.csvExportString(),
        u"\"Video\",,,\n\"WIDTH\",\"320\",\"640\",\"320\"\n\"Audio\",,,\n\"CODEC\",\"aac\",\"AVC-A\",\"aac\""_s);
    EXPECT_TRUE(table.htmlExportString().contains(u"<td class=o>640</td>"_s));
    EXPECT_FALSE(table.htmlExportString().contains(u"<td class=o>avc</td>"_s));

    EXPECT_EQ(table.textOf({1, 3, 99}), u"WIDTH\t320\t640\t320\nCODEC\taac\tAVC-A\taac"_s);
    EXPECT_EQ(ComparisonController::rowsToCopy({3, 1}, std::nullopt), (std::vector{1, 3}));
    EXPECT_EQ(ComparisonController::rowsToCopy({3, 1}, 1), (std::vector{1, 3}));
    EXPECT_EQ(ComparisonController::rowsToCopy({3, 1}, 2), std::vector{2});
}

} // namespace quorvin
