// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/MapWindow.h"

#include "shell/charts/MapCanvas.h"
#include "shell/charts/MapModel.h"
#include "shell/info/InfoView.h"
#include "shell/window/MainView.h"
#include "shell/window/SampleWindow.h"
#include "support/IndexedFiles.h"
#include "support/TestRecords.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

FilelistItemPtr fileAt(const Location &location)
{
    RecordContents contents = test::recordOf({u"Video#0/rate=1"_s})->contents();
    contents.mapLocation = location;
    return test::fileWith(std::make_shared<const QuorvinData>(std::move(contents)));
}

LocatedFilesPtr located(const std::vector<FilelistItemPtr> &files, MapType type = MapType::WebMercator)
{
    return locatedFilesOf(files, [](const FilelistItem &) { return true; }, type, {});
}

constexpr Location kLausanne{46.52, 6.633};
constexpr Location kGeneva{46.204, 6.143};
constexpr Location kSuva{-18.14, 178.44};

/// A canvas that shows files and remembers what it told.
struct ShownMap {
    MapCanvas canvas;
    std::vector<quint32> chosen;
    std::vector<quint32> spot;
    bool adds = false;

    explicit ShownMap(const std::vector<FilelistItemPtr> &files)
    {
        canvas.resize(600, 400);
        canvas.show();
        canvas.setFiles(located(files));
        QObject::connect(&canvas, &MapCanvas::filesChosen, [this](const auto &which, bool more) {
            chosen = which;
            adds = more;
        });
        QObject::connect(&canvas, &MapCanvas::spotOpened,
                         [this](const auto &which, const QPoint &) { spot = which; });
    }
    QPoint pixelOf(const Location &location) const
    {
        return canvas.view().toPixel(flattened(canvas.view().type, location)).toPoint();
    }
    void click(const Location &location, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(&canvas, Qt::LeftButton, modifiers, pixelOf(location));
    }
};

/// A window with two samples that were recorded at one place, and one that tells of none.
struct PlacesWindow : test::SampleWindow {
    MapWindow *map = nullptr;

    void SetUp() override
    {
        SampleWindow::SetUp();
        show({"movie.mp4", "photo.jpg", "tone.wav"});
        run(Command::showMapWindow);
        map = window->findChild<MapWindow *>();
        ASSERT_TRUE(map && map->isVisible());
        ASSERT_TRUE(spinUntil([this] { return rows() == 2; }));
    }
    int rows() const { return map->table().model()->rowCount(); }
    template <typename Button>
    Button *button(const QString &text) const
    {
        const auto all = map->findChildren<Button *>();
        const auto found
            = std::ranges::find_if(all, [&](const Button *one) { return one->text().startsWith(text); });
        return found == all.end() ? nullptr : *found;
    }
};

} // namespace

TEST_F(PlacesWindow, ReadersMeetTheMapBeforeItsTable)
{
    const QAccessibleInterface *halves = QAccessible::queryAccessibleInterface(map->table().parentWidget());
    ASSERT_TRUE(halves);
    EXPECT_EQ(halves->child(0)->text(QAccessible::Name), u"Map"_s);
    const auto *kind = map->findChild<QComboBox *>();
    EXPECT_EQ(kind->accessibleDescription(), u"Kind of map"_s) << "its name is what is chosen";
}

TEST_F(PlacesWindow, CountsAndTableSelectTheirFiles)
{
    EXPECT_TRUE(button<QPushButton>(u"2 on the map"_s));
    EXPECT_FALSE(button<QPushButton>(u"0 with"_s)->isVisible());
    button<QPushButton>(u"1 without position"_s)->click();
    EXPECT_EQ(selected(), u"2"_s);
    QTableView &files = map->table();
    QTest::mouseClick(files.viewport(), Qt::LeftButton, {},
                      files.visualRect(files.model()->index(1, 0)).center());
    EXPECT_EQ(selected(), u"1"_s);
    files.selectRow(0);
    QTest::keyClick(&files, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(selected(), u"0 1"_s);
    EXPECT_EQ(files.model()->index(0, MapModel::Latitude).data(), u"48.85770"_s);
    EXPECT_TRUE(spinUntil(
        [&] { return files.model()->index(0, MapModel::Place).data().toString().contains(u"France"_s); }));
}

TEST_F(PlacesWindow, NumbersEndBeforeTheTextBesideThem)
{
    QTableView &files = map->table();
    const auto inkBefore = [](QWidget *part, int end, int y) {
        const QImage air = part->grab({end - 16, y, 14, 10}).toImage();
        return air.copy(1, 0, 13, 10) != air.copy(0, 0, 13, 10);
    };
    const QRect number = files.visualRect(files.model()->index(0, MapModel::Longitude));
    EXPECT_FALSE(inkBefore(files.viewport(), number.right() + 1, number.center().y() - 5));
    QHeaderView *header = files.horizontalHeader();
    const int end = header->sectionViewportPosition(MapModel::Longitude) + number.width();
    EXPECT_FALSE(inkBefore(header->viewport(), end, header->height() / 2 - 5)) << "as their names do";
    const QRect text = files.visualRect(files.model()->index(0, MapModel::File));
    EXPECT_TRUE(inkBefore(files.viewport(), text.left() + 30, text.center().y() - 5));
}

TEST_F(PlacesWindow, OnlyWhatIsInViewIsListedIfWanted)
{
    auto *only = button<QCheckBox>(u"Only files in view"_s);
    const auto listed = [this] { return window->files().arranged().rowCount(); };
    only->click();
    EXPECT_TRUE(spinUntil([&] { return listed() == 2; })) << "the one without a position is out of view";
    map->canvas().showLocation(kSuva);
    EXPECT_TRUE(spinUntil([&] { return listed() == 0; }));
    bool isLocated = false;
    QObject::connect(map->findChild<LocatedFilesWatch *>(), &LocatedFilesWatch::located, map,
                     [&isLocated] { isLocated = true; });
    EXPECT_TRUE(spinUntil([&isLocated] { return isLocated; }));
    EXPECT_EQ(rows(), 2) << "the map shows what the list would have without it";
    QTest::keyClick(&map->canvas(), Qt::Key_Home);
    EXPECT_TRUE(spinUntil([&] { return listed() == 2; }));
    window->files().filtering().setCriteria({});
    EXPECT_FALSE(only->isChecked());
    EXPECT_EQ(listed(), 3);
}

TEST_F(PlacesWindow, TheLocationOfAFileOpensIt)
{
    map->close();
    window->files().selectRow(0);
    Q_EMIT window->myView().info().locationOpened();
    ASSERT_TRUE(map->isVisible());
    map->close();
    const auto place = [this]() -> QLabel * {
        for (QLabel *label : window->myView().info().findChildren<QLabel *>()) {
            if (label->text().endsWith(u", France"_s))
                return label;
        }
        return nullptr;
    };
    ASSERT_TRUE(spinUntil([&] { return place() != nullptr; }));
    QTest::mouseDClick(place(), Qt::LeftButton);
    ASSERT_TRUE(map->isVisible()) << "the place of a film, which has no row of its own";
    map->close();
    ASSERT_TRUE(canRun(Command::showOnMap));
    run(Command::showOnMap);
    ASSERT_TRUE(map->isVisible());
    window->files().selectRow(2);
    EXPECT_FALSE(canRun(Command::showOnMap)) << "it tells no position";
    const Location middle = unflattened(map->canvas().view().type, map->canvas().view().centre);
    EXPECT_NEAR(middle.latitude, 48.857, 0.01);
    auto *kind = map->findChild<QComboBox *>();
    Q_EMIT kind->activated(1);
    EXPECT_EQ(map->canvas().view().type, MapType::WholeEarth);
    EXPECT_TRUE(spinUntil([this] { return map->canvas().files()->type == MapType::WholeEarth; }));
    EXPECT_NEAR(unflattened(MapType::WholeEarth, map->canvas().view().centre).latitude, middle.latitude,
                0.01);
    window->close();
    EXPECT_FALSE(map->isVisible());
}

TEST(LocatedFiles, EachFileIsInOneOfTheLists)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto failed = test::fileWith(failure(u"damaged"_s));
    const auto plain = test::fileWith(test::recordOf({u"Video#0/rate=1"_s}));
    const auto all
        = located({fileAt({91, 0}), failed, fileAt(kSuva), plain, fileAt({0, nan}), fileAt({-90, 180})});
    EXPECT_EQ(all->files.size(), 2U);
    EXPECT_EQ(all->impossible.size(), 2U);
    EXPECT_EQ(all->without, std::vector{plain});
    EXPECT_EQ(all->unread, std::vector{failed});
    EXPECT_EQ(all->placeOf(all->files[1]), 1U);
    EXPECT_EQ(all->placeOf(plain), std::nullopt);
}

TEST(CanvasWindow, ClicksSelectEnlargeAndList)
{
    ShownMap map({fileAt(kLausanne), fileAt(kSuva), fileAt(kGeneva), fileAt(kSuva)});
    map.click(kLausanne, Qt::ControlModifier);
    EXPECT_EQ(map.chosen, (std::vector<quint32>{0, 2})) << "what stands together is added together";
    EXPECT_TRUE(map.adds);
    map.click(kSuva);
    EXPECT_EQ(map.spot, (std::vector<quint32>{1, 3})) << "no scale parts them";
    const double before = map.canvas.view().worldWidth;
    map.click(kLausanne);
    EXPECT_GT(map.canvas.view().worldWidth, before * 10);
    map.click(kGeneva);
    EXPECT_EQ(map.chosen, std::vector<quint32>{2});
    EXPECT_FALSE(map.adds);
    map.canvas.showAll();
    QTest::mousePress(&map.canvas, Qt::LeftButton, Qt::ShiftModifier, map.pixelOf(kSuva) - QPoint(9, 9));
    QTest::mouseRelease(&map.canvas, Qt::LeftButton, Qt::ShiftModifier, map.pixelOf(kSuva) + QPoint(9, 9));
    EXPECT_EQ(map.chosen, (std::vector<quint32>{1, 3}));
}

TEST(CanvasWindow, KeysWalkTheMarksAndMoveTheMap)
{
    ShownMap map({fileAt(kSuva), fileAt(kLausanne), fileAt({40.7, -74})});
    map.canvas.activateWindow();
    map.canvas.setFocus();
    ASSERT_TRUE(spinUntil([&] { return map.canvas.hasFocus(); }));
    for (const quint32 file : {2U, 1U, 0U}) {
        QTest::keyClick(&map.canvas, Qt::Key_Tab);
        QTest::keyClick(&map.canvas, Qt::Key_Return);
        EXPECT_EQ(map.chosen, std::vector{file}) << "from west to east";
    }
    QTest::keyClick(&map.canvas, Qt::Key_Backtab);
    QTest::keyClick(&map.canvas, Qt::Key_Enter, Qt::ControlModifier);
    EXPECT_EQ(map.chosen, std::vector{1U});
    EXPECT_TRUE(map.adds);
    const MapView all = map.canvas.view();
    QTest::keyClick(&map.canvas, Qt::Key_Plus);
    QTest::keyClick(&map.canvas, Qt::Key_Left);
    EXPECT_EQ(map.canvas.view().worldWidth, all.worldWidth * 2);
    EXPECT_LT(map.canvas.view().centre.x(), all.centre.x());
    map.canvas.setFiles(located({fileAt(kLausanne)}));
    EXPECT_NE(map.canvas.view(), all) << "who has moved it wants to stay there";
    QTest::keyClick(&map.canvas, Qt::Key_Home);
    EXPECT_TRUE(QRectF(map.canvas.rect()).contains(map.pixelOf(kLausanne)));
}

TEST(CanvasWindow, OneSpotIsShownWithTheTownsAroundIt)
{
    const Location roundTheCorner{kLausanne.latitude + 1e-3, kLausanne.longitude};
    ShownMap one({fileAt(kLausanne)});
    ShownMap two({fileAt(kLausanne), fileAt(roundTheCorner)});
    EXPECT_EQ(two.canvas.view().worldWidth, one.canvas.view().worldWidth);
    two.click(kLausanne);
    EXPECT_GT(two.canvas.view().worldWidth, one.canvas.view().worldWidth * 10) << "a click parts them";
}

TEST(CanvasWindow, ADragMovesWhatIsUnderThePointerAndAWheelKeepsItThere)
{
    ShownMap map({fileAt(kLausanne), fileAt(kGeneva)});
    const QPoint start = map.pixelOf(kLausanne) + QPoint(40, 30);
    const Location held = unflattened(MapType::WebMercator, map.canvas.view().toFlat(start));
    QTest::mousePress(&map.canvas, Qt::LeftButton, {}, start);
    QTest::mouseMove(&map.canvas, start + QPoint(30, 10));
    QTest::mouseMove(&map.canvas, start + QPoint(60, 20));
    QTest::mouseRelease(&map.canvas, Qt::LeftButton, {}, start + QPoint(60, 20));
    EXPECT_EQ(map.pixelOf(held), start + QPoint(60, 20));
    EXPECT_TRUE(map.chosen.empty());
    const QPointF place = start + QPoint(60, 20);
    QWheelEvent wheel(place, map.canvas.mapToGlobal(place), {}, {0, 240}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QGuiApplication::sendEvent(&map.canvas, &wheel);
    EXPECT_EQ(map.pixelOf(held), place.toPoint());
}

TEST(MapModel, KeepsTheRulesOfModels)
{
    MapModel model([](const Location &) { return u"here"_s; }, nullptr);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setFiles(located({fileAt(kSuva)}));
    EXPECT_EQ(model.index(0, MapModel::Longitude).data(), u"178.44000"_s);
    EXPECT_EQ(model.index(0, MapModel::Place).data(), u"here"_s);
    model.setFiles(nullptr);
    EXPECT_EQ(model.rowCount(), 0);
}

} // namespace quorvin
