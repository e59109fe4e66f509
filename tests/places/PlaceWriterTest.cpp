// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/PlaceWriter.h"

#include "platform/NativePath.h"
#include "support/TestFolder.h"
#include "support/TestRecords.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace quorvin {
namespace {

using namespace Qt::StringLiterals;
using test::recordOf;

const QString kHostile = u"/m/<b>\"a\" & ]]>\x01\r\n\t\uffff\U0001f600\u202e"_s + QChar(0xd800) + u"=x"_s
    + decodePath("\xff.jpg");

std::vector<PlacedFile> places()
{
    return {{u"/m/Tom & Jerry.jpg"_s, {46.5197, 6.6323}, u"2016-09-12T10:05:31+02:00"_s},
            {kHostile, {-33.123456789, 179.99999999}, u"2016-09-12T10:05:31"_s},
            {u"/m/nowhere.jpg"_s, {91, 0}, {}},
            {u"/m/-1.mov"_s, {0, -0.00000001}, {}},
            {u"/m/none.mov"_s, {std::numeric_limits<double>::quiet_NaN(), 0}, {}}};
}

QByteArray documentOf(const QString &format, const std::vector<PlacedFile> &files, bool skipPrivate = false)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    PlaceWriter writer(format, device, skipPrivate);
    writer.begin();
    for (const PlacedFile &file : files)
        EXPECT_TRUE(writer.add(file));
    EXPECT_TRUE(writer.finish());
    EXPECT_EQ(writer.written() + writer.impossible(), static_cast<qint64>(files.size()));
    return device.data();
}

/// The elements below the root, one a line: names of those around and of its own, attributes, text.
QStringList elementsOf(const QByteArray &document)
{
    QXmlStreamReader xml(document);
    QStringList lines;
    QStringList names;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            names.append(xml.name().toString());
            lines.append(names.sliced(1).join(u'/'));
            for (const QXmlStreamAttribute &attribute : xml.attributes())
                lines.last() += u' ' + attribute.value().toString();
        } else if (token == QXmlStreamReader::EndElement) {
            names.removeLast();
        } else if (token == QXmlStreamReader::Characters && !xml.isWhitespace()) {
            lines.last() += u": "_s + xml.text().toString();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return lines;
}

/// What XML makes of the hostile name.
const QString kHostileInXml = u"<b>\"a\" & ]]>\ufffd\r\n\t\ufffd\U0001f600\u202e?=x?.jpg"_s;

} // namespace

TEST(PlaceWriter, GeoJsonHasPointsInTheirOrder)
{
    QJsonParseError problem;
    const QByteArray document = documentOf(u"geojson"_s, places());
    const QJsonObject json = QJsonDocument::fromJson(document, &problem).object();
    EXPECT_EQ(problem.error, QJsonParseError::NoError) << problem.errorString().toStdString();
    EXPECT_EQ(json[u"type"_s].toString(), u"FeatureCollection"_s);
    const QJsonArray features = json[u"features"_s].toArray();
    ASSERT_EQ(features.size(), 3);
    EXPECT_TRUE(document.contains(R"("coordinates":[6.6323,46.5197]})"));
    EXPECT_TRUE(document.contains(R"("coordinates":[180,-33.1234568]})"));
    EXPECT_TRUE(
        document.contains(R"("coordinates":[0,0]},"properties":{"name":"-1.mov","path":"/m/-1.mov"}})"));
    const QJsonObject facts = features[1].toObject()[u"properties"_s].toObject();
    EXPECT_EQ(facts[u"name"_s].toString(), u"<b>\"a\" & ]]>\x01\r\n\t\uffff\U0001f600\u202e?=x?.jpg"_s);
    EXPECT_EQ(facts[u"date"_s].toString(), u"2016-09-12T10:05:31"_s);
    EXPECT_EQ(documentOf(u"geojson"_s, {places()[0]}, true),
              "{\"type\":\"FeatureCollection\",\"features\":[\n{\"type\":\"Feature\",\"geometry\":{\"type\":"
              "\"Point\",\"coordinates\":[6.6323,46.5197]},\"properties\":{\"date\":"
              "\"2016-09-12T10:05:31+02:00\"}}\n]}");
    EXPECT_TRUE(QJsonDocument::fromJson(documentOf(u"geojson"_s, {})).isObject());
}

TEST(PlaceWriter, KmlHasPlacemarks)
{
    const QStringList elements = elementsOf(documentOf(u"kml"_s, places()));
    const QStringList first{u"Document/Placemark"_s,
                            u"Document/Placemark/name: Tom & Jerry.jpg"_s,
                            u"Document/Placemark/description: /m/Tom & Jerry.jpg"_s,
                            u"Document/Placemark/TimeStamp"_s,
                            u"Document/Placemark/TimeStamp/when: 2016-09-12T10:05:31+02:00"_s,
                            u"Document/Placemark/Point"_s,
                            u"Document/Placemark/Point/coordinates: 6.6323,46.5197"_s};
    EXPECT_EQ(elements.sliced(2, 7), first);
    EXPECT_EQ(elements[10], u"Document/Placemark/name: "_s + kHostileInXml);
    // Markup in a path is shown, not obeyed.
    EXPECT_TRUE(elements[11].startsWith(u"Document/Placemark/description: /m/&lt;b&gt;"_s))
        << elements[11].toStdString();
    const QStringList hidden = elementsOf(documentOf(u"kml"_s, places(), true));
    EXPECT_EQ(hidden.filter(u"name"_s) + hidden.filter(u"description"_s), QStringList());
    EXPECT_EQ(hidden.filter(u"coordinates"_s).size(), 3);
    EXPECT_EQ(elementsOf(documentOf(u"kml"_s, {})).size(), 2);
}

TEST(PlaceWriter, GpxHasItsElementsInTheOrderOfTheSchema)
{
    const QStringList elements = elementsOf(documentOf(u"gpx"_s, places()));
    const QStringList first{u"wpt 46.5197 6.6323"_s, u"wpt/time: 2016-09-12T08:05:31Z"_s,
                            u"wpt/name: Tom & Jerry.jpg"_s, u"wpt/desc: /m/Tom & Jerry.jpg"_s,
                            u"wpt/link file:///m/Tom%20%26%20Jerry.jpg"_s};
    EXPECT_EQ(elements.sliced(1, 5), first);
    EXPECT_EQ(elements.sliced(6, 3),
              (QStringList{u"wpt -33.1234568 -180"_s, u"wpt/name: "_s + kHostileInXml,
                           u"wpt/cmt: 2016-09-12T10:05:31"_s}));
    EXPECT_TRUE(elements[10].endsWith(u"%FF.jpg"_s));
    EXPECT_EQ(elementsOf(documentOf(u"gpx"_s, {places()[1]}, true)),
              (QStringList{u" 1.1 Quorvin"_s, u"wpt -33.1234568 -180"_s, u"wpt/cmt: 2016-09-12T10:05:31"_s}));
}

TEST(PlaceWriter, CsvKeepsNumbersBelowZero)
{
    EXPECT_EQ(documentOf(u"csv"_s, {{u"/m/=1\".jpg"_s, {-33.5, -70}, {}}, places()[0]}),
              "\xef\xbb\xbf\"Name\",\"Path\",\"Latitude\",\"Longitude\",\"Date\"\n"
              "\"'=1\"\".jpg\",\"/m/=1\"\".jpg\",-33.5,-70,\n"
              "\"Tom & Jerry.jpg\",\"/m/Tom & Jerry.jpg\",46.5197,6.6323,\"2016-09-12T10:05:31+02:00\"");
    EXPECT_TRUE(documentOf(u"csv"_s, {places()[0]}, true)
                    .endsWith("\n,,46.5197,6.6323,\"2016-09-12T10:05:31+02:00\""));
}

TEST(RecordedDate, IsAsExactAsTold)
{
    const auto dateOf = [](const QString &text, const QString &zone = {}) {
        const QString offset = u"EXIF#0/Exif.Photo.OffsetTimeOriginal="_s + zone;
        return recordedDate(*recordOf({u"EXIF#0/Exif.Photo.DateTimeOriginal="_s + text, offset}));
    };
    EXPECT_EQ(dateOf(u"2016:09:12 10:05:31 "_s), u"2016-09-12T10:05:31"_s);
    EXPECT_EQ(dateOf(u"2016:09:12 10:05:31"_s, u"+02:00"_s), u"2016-09-12T10:05:31+02:00"_s);
    EXPECT_EQ(dateOf(u"2016:09:12 10:05:31"_s, u"   "_s), u"2016-09-12T10:05:31"_s);
    EXPECT_EQ(dateOf(u"2023-08-05T17:16:53.939+0200"_s), u"2023-08-05T17:16:53.939+02:00"_s);
    EXPECT_EQ(dateOf(u"2018-02-21 12:08:56 UTC"_s), u"2018-02-21T12:08:56Z"_s);
    EXPECT_EQ(dateOf(u"2018-02-21T12:08"_s), u"2018-02-21T12:08:00"_s);
    EXPECT_EQ(dateOf(u"2018-02"_s), u"2018-02"_s);
    EXPECT_EQ(dateOf(u"2019"_s), u"2019"_s);
    for (const QString &none : {u""_s, u"0000:00:00 00:00:00"_s, u"2018:02:30"_s, u"2018-01-01 25:00:00"_s,
                                u"2018-01-01 10:00:00+99:00"_s, u"2018-01-01 10:00:00 CET"_s, u"soon"_s})
        EXPECT_EQ(dateOf(none), QString());
}

TEST(RecordedDate, ComesFromTheFirstThatTells)
{
    EXPECT_EQ(
        recordedDate(*recordOf({u"Container/Encoded_Date=2019-07-24 08:25:40 UTC"_s,
                                u"Container/com.apple.quicktime.creationdate=2019-07-24T11:25:40+0300"_s})),
        u"2019-07-24T11:25:40+03:00"_s);
    EXPECT_EQ(recordedDate(*recordOf({u"EXIF#0/Exif.Photo.DateTimeOriginal=0000:00:00 00:00:00"_s,
                                      u"XMP#0/Xmp.exif.DateTimeOriginal=2019-07-24"_s})),
              u"2019-07-24"_s);
    EXPECT_FALSE(placedFile(u"/x"_s, *recordOf({u"File#0/Name=x"_s})));
}

} // namespace quorvin
