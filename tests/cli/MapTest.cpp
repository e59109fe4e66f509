// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/CommandLine.h"
#include "support/TestFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace quorvin {

using test::contentOf;
using test::Outcome;
using test::runCommandLine;
using test::samplesFolder;
using test::TestFolder;

namespace {

using namespace Qt::StringLiterals;

Outcome map(const QStringList &rest)
{
    return runCommandLine(QStringList{u"map"_s} + rest);
}

} // namespace

TEST(CommandLineMap, WritesLocatedFilesInTheOrderOfTheList)
{
    const Outcome outcome = map({samplesFolder()});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "quorvin-cli: not on the map: 6 without a position\n");
    const QJsonArray features = QJsonDocument::fromJson(outcome.output).object()[u"features"_s].toArray();
    ASSERT_EQ(features.size(), 2);
    EXPECT_EQ(features[0][u"properties"_s][u"path"_s].toString(), samplesFolder() + u"/movie.mp4"_s);
    EXPECT_EQ(features[1][u"properties"_s][u"name"_s].toString(), u"photo.jpg"_s);
    EXPECT_NEAR(features[1][u"geometry"_s][u"coordinates"_s][1].toDouble(), 48.8577, 1e-3);
}

TEST(CommandLineMap, TakesTheOptionsOfADocument)
{
    const TestFolder folder;
    const QString path = folder / u"places.kml"_s;
    const QStringList kml{
        u"-f"_s,        u"kml"_s, u"-o"_s, path, u"--skip-private"_s, u"--filter"_s, u"fileType = 'Image'"_s,
        samplesFolder()};
    EXPECT_EQ(map(kml).status, 0);
    EXPECT_EQ(contentOf(path).count("<Placemark>"), 1);
    EXPECT_FALSE(contentOf(path).contains("photo"));
    EXPECT_EQ(map({u"-f"_s, u"gpx"_s, u"-o"_s, path, samplesFolder()}).status, 2);
    EXPECT_EQ(map({u"-f"_s, u"gpx"_s, u"--force"_s, u"-o"_s, path, samplesFolder()}).status, 0);
    EXPECT_EQ(contentOf(path).count("<wpt "), 2);
    EXPECT_EQ(map({u"-f"_s, u"txt"_s, samplesFolder()}).status, 2);
}

TEST(CommandLineMap, FailedFilesCostTheirOwnLine)
{
    const Outcome outcome = map({u"-f"_s, u"csv"_s, u"/no/such"_s, samplesFolder() + u"/movie.mp4"_s});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output.count("movie.mp4\",48.8577,2.295,"), 1);
    EXPECT_EQ(outcome.errors, "quorvin-cli: /no/such: No such file or directory\n");
}

} // namespace quorvin
