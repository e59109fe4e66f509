// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/MapExport.h"

#include "shell/session/LiveSettings.h"
#include "support/Events.h"
#include "support/TestFolder.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::contentOf;
using test::spinUntil;
using test::TestFolder;

namespace {

FilelistItemPtr placed(const QString &path, const std::optional<Location> &location)
{
    auto item = FilelistItem::itemWithFilename(path, path);
    RecordContents record;
    record.mapLocation = location;
    item->setResult(std::make_shared<const QuorvinData>(std::move(record)));
    return item;
}

PlacesDocument document(const QString &format)
{
    return {format,
            {placed(u"/m/b.jpg"_s, Location{-1, 2}),
             FilelistItem::itemWithFilename(u"/m/unread"_s, u"unread"_s), placed(u"/m/nowhere.jpg"_s, {}),
             placed(u"/m/a.jpg"_s, Location{3, 4})}};
}

} // namespace

TEST(MapExport, WritesLocatedFilesOrNothing)
{
    const TestFolder folder;
    std::stop_source source;
    int done = 0;
    const RunControl control(source.get_token(), [&](int files, int total) {
        EXPECT_EQ(total, 4);
        done = files;
    });
    EXPECT_TRUE(writePlaces(folder / u"a.csv"_s, document(u"csv"_s), control));
    EXPECT_EQ(done, 4);
    EXPECT_TRUE(contentOf(folder / u"a.csv"_s)
                    .endsWith("\n\"b.jpg\",\"/m/b.jpg\",-1,2,\n\"a.jpg\",\"/m/a.jpg\",3,4,"));
    source.request_stop();
    EXPECT_FALSE(writePlaces(folder / u"b.csv"_s, document(u"csv"_s), control));
    EXPECT_EQ(folder.names(), QStringList{u"a.csv"_s});
}

TEST(MapExportWindow, AsksForAPlaceAndTellsWhatFailed)
{
    const TestFolder folder;
    Settings values(folder / u"settings.ini"_s);
    LiveSettings settings(values);
    QWidget window;
    MapExport exporter(settings, &window);
    const QSignalSpy exported(&exporter, &MapExport::exported);
    const auto choose = [&](const QString &name) {
        auto *dialog = window.findChild<QFileDialog *>();
        EXPECT_EQ(dialog->defaultSuffix(), name.section(u'.', 1));
        Q_EMIT dialog->fileSelected(folder / name);
        delete dialog;
    };
    QImage picture(8, 6, QImage::Format_RGB32);
    picture.fill(Qt::red);
    exporter.exportPicture(picture);
    choose(u"map.png"_s);
    EXPECT_TRUE(spinUntil([&] { return exported.size() == 1; }));
    EXPECT_EQ(QImage(folder / u"map.png"_s).pixelColor(7, 5), QColor(Qt::red));
    exporter.exportPlaces(document(u"kml"_s));
    choose(u"places.kml"_s);
    EXPECT_TRUE(spinUntil([&] { return exported.size() == 2; }));
    EXPECT_EQ(contentOf(folder / u"places.kml"_s).count("<Placemark>"), 2);
    exporter.exportPlaces(document(u"gpx"_s));
    choose(u"none/places.gpx"_s);
    EXPECT_TRUE(spinUntil([&] { return window.findChild<QMessageBox *>() != nullptr; }));
    EXPECT_EQ(exported.size(), 2);
}

} // namespace quorvin
