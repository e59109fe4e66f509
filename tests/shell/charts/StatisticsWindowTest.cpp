// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/RuleText.h"
#include "shell/charts/CountModel.h"
#include "shell/charts/CountPlot.h"
#include "shell/charts/StatExport.h"
#include "shell/charts/StatWindow.h"
#include "shell/info/InfoView.h"
#include "shell/window/MainView.h"
#include "shell/window/SampleWindow.h"
#include "support/CountedFiles.h"
#include "support/TestFolder.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::contentOf;
using test::spinUntil;
using test::TestFolder;

namespace {

/// A window with the films and the sound of the samples, in the order matroska.mkv, movie.mp4, tone.wav.
struct StatisticsWindow : test::SampleWindow {
    StatWindow *stat = nullptr;

    /// Opens it, and waits until the parameter is counted.
    void count(const QString &parameter)
    {
        run(Command::showStatWindow);
        stat = window->findChild<StatWindow *>();
        ASSERT_TRUE(stat && stat->isVisible());
        stat->showParameter(parameter);
        ASSERT_TRUE(spinUntil([&] { return table() && table()->count().parameter == parameter; }));
    }
    CountTablePtr table() const { return static_cast<CountModel *>(stat->table().model())->table(); }
    QStringList rows() const { return table() ? test::linesOf(*table()) : QStringList(); }
    void click(int row, Qt::KeyboardModifiers modifiers = {}) const
    {
        const QRect place = stat->table().visualRect(stat->table().model()->index(row, 0));
        QTest::mouseClick(stat->table().viewport(), Qt::LeftButton, modifiers, place.center());
    }
    template <typename Widget>
    Widget *part(const QString &name) const
    {
        const auto all = stat->findChildren<Widget *>();
        const auto found = std::ranges::find_if(all, [&](const Widget *one) {
            return one->accessibleName() == name || one->property("text").toString().startsWith(name);
        });
        return found == all.end() ? nullptr : *found;
    }
};

} // namespace

TEST_F(StatisticsWindow, RowsSelectTheirFiles)
{
    count(u"Audio/Language"_s);
    EXPECT_EQ(rows(), QStringList({u"2 2 English"_s, u"2 2 French"_s, u"1 0 not in this file"_s}));
    EXPECT_TRUE(part<QLabel>(u"2 of 3 files have Audio/Language: 2 different values"_s));
    click(2);
    EXPECT_EQ(selected(), u"2"_s);
    click(0);
    EXPECT_EQ(selected(), u"0 1"_s);
    click(2, Qt::ControlModifier);
    EXPECT_EQ(selected(), u"0 1 2"_s);
    click(1);
    QTest::keyClick(&stat->table(), Qt::Key_Down);
    EXPECT_EQ(selected(), u"0 1"_s) << "a walk through the rows selects nothing yet";
    QTest::keyClick(&stat->table(), Qt::Key_Return);
    EXPECT_EQ(selected(), u"2"_s);
}

TEST_F(StatisticsWindow, BarsSelectTheirFilesAndDragsARange)
{
    count(u"Container/Duration"_s);
    part<QComboBox>(u"Rows"_s)->setCurrentIndex(1);
    Q_EMIT part<QComboBox>(u"Rows"_s)->activated(1);
    ASSERT_TRUE(spinUntil([this] { return table()->isInRanges(); }));
    const auto bars = table()->counted();
    const auto last = static_cast<std::size_t>(bars.size() - 1);
    ASSERT_TRUE(bars.front().sum.files == 1 && bars[last].sum.files == 2) << rows().join(u'\n').toStdString();
    QWidget *canvas = stat->plot().findChild<QWidget *>();
    ASSERT_TRUE(spinUntil([&] { return stat->plot().placeOf(last).x() > stat->plot().placeOf(0).x() + 50; }));
    const auto placeOf = [this](std::size_t row) { return stat->plot().placeOf(row).toPoint(); };
    QTest::mouseClick(canvas, Qt::LeftButton, {}, placeOf(last));
    EXPECT_EQ(selected(), u"0 1"_s);
    QTest::mouseClick(canvas, Qt::LeftButton, {}, placeOf(0));
    EXPECT_EQ(selected(), u"2"_s);
    QTest::mousePress(canvas, Qt::LeftButton, {}, placeOf(last));
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, placeOf(0));
    EXPECT_EQ(selected(), u"0 1 2"_s);
}

TEST_F(StatisticsWindow, ShowOnlyTheseNarrowsTheListAndTheCountFollows)
{
    count(u"File/Kind"_s);
    ASSERT_EQ(rows().size(), 3);
    auto *only = part<QPushButton>(u"Show Only These"_s);
    EXPECT_FALSE(only->isEnabled());
    click(2);
    EXPECT_TRUE(only->isEnabled());
    const QString kind = table()->rows()[2].text;
    only->click();
    EXPECT_EQ(textOfRule(window->files().filtering().criteria().rule), u"[File/Kind] = '%1'"_s.arg(kind));
    EXPECT_TRUE(spinUntil([&] { return rows() == QStringList(u"1 1 "_s + kind); }));
    run(Command::showAllFiles);
    EXPECT_TRUE(spinUntil([this] { return rows().size() == 3; }));
}

TEST_F(StatisticsWindow, ParametersAreChosenByNameOrPreset)
{
    count(u"File/Kind"_s);
    auto *tree = part<QTreeView>(u"Parameters"_s);
    ASSERT_TRUE(spinUntil([tree] { return tree->model()->rowCount(tree->model()->index(3, 0)) > 20; }));
    EXPECT_EQ(tree->model()->index(0, 0).data(), u"Photographer"_s);
    const QModelIndex failed = tree->model()->index(6, 0, tree->model()->index(2, 0));
    EXPECT_EQ(failed.siblingAtColumn(1).data(), u"0"_s);
    tree->setCurrentIndex(failed);
    ASSERT_TRUE(spinUntil([this] { return table()->count().parameter == kFailures; }));
    EXPECT_TRUE(part<QLabel>(u"All 3 files could be read."_s));
    part<QLineEdit>(u"Find a parameter"_s)->setText(u"sampling RATE"_s);
    const QModelIndex all = tree->model()->index(0, 0);
    ASSERT_EQ(tree->model()->rowCount(all), 1);
    EXPECT_EQ(tree->model()->index(0, 1, all).data(), u"3"_s) << "files that have it";
    EXPECT_EQ(tree->model()->index(0, 2, all).data(), u"2"_s) << "distinct values";
    EXPECT_EQ(table()->count().parameter, kFailures) << "nobody has chosen another";
    tree->setCurrentIndex(tree->model()->index(0, 0, all));
    EXPECT_TRUE(spinUntil([this] { return table()->count().parameter == u"Audio/Sampling rate"_s; }));
}

TEST_F(StatisticsWindow, CommandCountsTheSelectedParameter)
{
    run(Command::selectExtendedTab);
    window->myView().info().showParameter(u"Video"_s, 1, u"Width/String"_s);
    ASSERT_TRUE(spinUntil([this] { return canRun(Command::parameterStatistics); }));
    run(Command::parameterStatistics);
    stat = window->findChild<StatWindow *>();
    ASSERT_TRUE(stat);
    EXPECT_TRUE(spinUntil([this] {
        return rows() == QStringList({u"2 2 320 pixels"_s, u"1 0 not in this file"_s});
    }));
}

TEST_F(StatisticsWindow, CopiesAndExports)
{
    count(u"Audio/Language"_s);
    click(1);
    part<QPushButton>(u"Copy"_s)->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text().section(u'\n', 1).section(u'\t', 0, 3),
              u"value\tFrench\t2\t2"_s);
    const TestFolder place;
    auto *exporter = stat->findChild<StatExport *>();
    for (const auto &[kind, name, start] :
         {std::tuple(StatExport::Kind::Csv, u"a.csv"_s, QByteArray("\xef\xbb\xbf\"Row\",\"Value\"")),
          std::tuple(StatExport::Kind::Png, u"a.png"_s, QByteArray("\x89PNG")),
          std::tuple(StatExport::Kind::Pdf, u"a.pdf"_s, QByteArray("%PDF"))}) {
        exporter->write(place / name, kind, table(), stat->plot());
        const QString path = place / name;
        EXPECT_TRUE(spinUntil([&path] { return QFile::exists(path); }));
        EXPECT_TRUE(contentOf(path).startsWith(start)) << name.toStdString();
    }
    exporter->write(place / u"no/such/a.csv"_s, StatExport::Kind::Csv, table(), stat->plot());
    EXPECT_TRUE(spinUntil([this] { return stat->findChild<QMessageBox *>() != nullptr; }));
}

TEST_F(StatisticsWindow, DatesTakeStepsAndTooFineOnesGiveWay)
{
    count(u"File/Modified"_s);
    auto *rowsOf = part<QComboBox>(u"Rows"_s);
    auto *steps = part<QComboBox>(u"Steps of dates"_s);
    EXPECT_FALSE(steps->isVisible());
    rowsOf->setCurrentIndex(1);
    Q_EMIT rowsOf->activated(1);
    ASSERT_TRUE(spinUntil([&] { return steps->isVisible(); }));
    steps->setCurrentIndex(steps->findData(static_cast<int>(DateStep::HourOfDay)));
    Q_EMIT steps->activated(steps->currentIndex());
    EXPECT_TRUE(spinUntil([this] { return table()->counted().size() == 24; }));
    EXPECT_EQ(steps->currentText(), u"Hour of the day"_s);
    stat->showParameter(u"Audio/Format"_s);
    EXPECT_TRUE(spinUntil([&] { return !steps->isVisible(); }));
    EXPECT_FALSE(rowsOf->isEnabled()) << "formats measure nothing";
}

TEST_F(StatisticsWindow, FollowsTheSelectedParameterIfWanted)
{
    count(u"File/Kind"_s);
    stat->follow(u"File/Name"_s);
    EXPECT_EQ(stat->windowTitle(), u"Statistics: File/Kind"_s);
    part<QCheckBox>(u"Follow"_s)->click();
    run(Command::selectExtendedTab);
    window->myView().info().showParameter(u"Video"_s, 1, u"Width/String"_s);
    EXPECT_TRUE(spinUntil([this] { return stat->windowTitle() == u"Statistics: Video/Width"_s; }));
    window->close();
    EXPECT_FALSE(stat->isVisible());
}

TEST(CountPlot, ShowsEveryKindOfCountAndTellsWhereItsBarsAre)
{
    QStringList many;
    for (int i = 1; i <= 300; ++i)
        many.append(u"%1 b/s"_s.arg(i * i));
    const auto ofValues = [](const QStringList &values, const CountView &view) {
        return std::make_shared<const CountTable>(test::counted(u"Video/rate"_s, test::filesOfValues(values)),
                                                  view);
    };
    CountPlot plot;
    plot.resize(600, 1200);
    plot.show();
    EXPECT_FALSE(plot.png(u"nothing"_s).isEmpty());
    std::vector<std::size_t> chosen;
    QObject::connect(&plot, &CountPlot::rowsChosen, [&chosen](const auto &rows) { chosen = rows; });
    for (const auto &table :
         {ofValues(many, {}), ofValues(many, {.inRanges = true}), ofValues({u"7 s"_s}, {.inRanges = true}),
          ofValues({u"2020-01-01"_s, u"2021-05-06"_s}, {.inRanges = true, .step = DateStep::Day}),
          ofValues({}, {.inRanges = true})}) {
        plot.setTable(table);
        EXPECT_EQ(plot.isCut(), table->counted().size() > 40 && !table->isInRanges());
        EXPECT_TRUE(plot.pdf(u"title"_s).startsWith("%PDF"));
        const std::size_t last = std::min<std::size_t>(table->counted().size(), 40);
        for (const std::size_t row : {std::size_t{0}, last / 2}) {
            if (table->counted().empty())
                break;
            const QByteArray before = plot.png(u"title"_s);
            QTest::mouseClick(plot.findChild<QWidget *>(), Qt::LeftButton, {}, plot.placeOf(row).toPoint());
            EXPECT_EQ(chosen, std::vector{row});
            plot.setSelected(chosen);
            EXPECT_EQ(plot.png(u"title"_s) != before, table->counted()[row].sum.files > 0)
                << table->counted().front().text.toStdString() << ' ' << row;
            plot.setSelected({});
        }
    }
    plot.setTable(ofValues(many.first(10), {}));
    EXPECT_FALSE(plot.isCut());
    plot.resize(600, plot.fontMetrics().height() * 9);
    EXPECT_TRUE(spinUntil([&plot] { return plot.isCut(); })) << "each bar has room for its name";
}

TEST(CountModel, KeepsTheRulesOfModels)
{
    CountModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto count
        = test::counted(u"Video/rate"_s, test::filesOfValues({u"5 Mb/s"_s, u"5 Mb/s"_s, u"none"_s}));
    model.setTable(std::make_shared<const CountTable>(count, CountView{}));
    EXPECT_EQ(model.index(0, CountModel::Share).data(), u"66.7%"_s);
    EXPECT_EQ(model.index(0, CountModel::Files).data(), u"2"_s);
    model.setTable(nullptr);
    EXPECT_EQ(model.rowCount(), 0);
}

} // namespace quorvin
