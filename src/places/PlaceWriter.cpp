// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/PlaceWriter.h"

#include "SBJson5/SBJson5StreamWriter.h"
#include "export/Csv.h"
#include "export/JsonBytes.h"
#include "places/PositionText.h"
#include "places/Projection.h"
#include "platform/FileUri.h"
#include "platform/NativePath.h"

#include <QDateTime>

#include <algorithm>
#include <array>

namespace quorvin {

/// What a document consists of.
struct PlaceFormat {
    QLatin1String key;
    const char *head;
    const char *between; ///< two files
    const char *tail;
    void (*put)(const PlacedFile &file, OutputBuffer &out); ///< the path is "" where it is private
};

namespace {

using namespace Qt::StringLiterals;

bool isOutsideXml(QChar unit)
{
    constexpr char16_t kFirstUnitWithoutCharacter = 0xfffe;
    const bool isControl = unit < u' ' && unit != u'\t' && unit != u'\n' && unit != u'\r';
    return isControl || unit.unicode() >= kFirstUnitWithoutCharacter;
}

/// The content of an XML element.
QString xmlText(const QString &text)
{
    QString escaped = text.toHtmlEscaped();
    std::ranges::replace_if(escaped, isOutsideXml, QChar(QChar::ReplacementCharacter));
    // A reader takes a bare one for the end of a line.
    return escaped.replace(u'\r', "&#13;"_L1);
}

void putElement(QLatin1String name, const QString &text, OutputBuffer &out)
{
    if (!text.isEmpty())
        out.putText(u'<' + name + u'>' + xmlText(text) + "</"_L1 + name + u'>');
}

void putMember(SBJson5StreamWriter &json, const QString &key, const QString &value)
{
    if (value.isEmpty())
        return;
    json.writeString(key);
    json.writeString(value);
}

void putGeoJson(const PlacedFile &file, OutputBuffer &out)
{
    out.putText(R"({"type":"Feature","geometry":{"type":"Point","coordinates":[)"_L1
                + degreesText(file.location.longitude) + u',' + degreesText(file.location.latitude)
                + R"(]},"properties":)"_L1);
    JsonBytes bytes(out);
    SBJson5StreamWriter json(bytes, {});
    json.writeObjectOpen();
    putMember(json, u"name"_s, lastPathComponent(file.path));
    putMember(json, u"path"_s, file.path);
    putMember(json, u"date"_s, file.date);
    json.writeObjectClose();
    out.put("}");
}

/// Viewers take a text with a tag in it as HTML, and would load what it names.
QString kmlDescription(const QString &path)
{
    return path.contains(u'<') ? path.toHtmlEscaped() : path;
}

void putKml(const PlacedFile &file, OutputBuffer &out)
{
    out.put("<Placemark>");
    putElement("name"_L1, lastPathComponent(file.path), out);
    putElement("description"_L1, kmlDescription(file.path), out);
    if (!file.date.isEmpty())
        out.putText("<TimeStamp><when>"_L1 + file.date + "</when></TimeStamp>"_L1);
    out.putText("<Point><coordinates>"_L1 + degreesText(file.location.longitude) + u','
                + degreesText(file.location.latitude) + "</coordinates></Point></Placemark>"_L1);
}

/// In universal time; "" for a date that does not tell its time or its zone.
QString universalTime(const QString &date)
{
    const QDateTime time = QDateTime::fromString(date, Qt::ISODate);
    const bool hasZone = time.isValid() && time.timeSpec() != Qt::LocalTime;
    return hasZone ? time.toUTC().toString(Qt::ISODate) : QString();
}

/// The date line is west of all: GPX has no 180 degrees east.
QString gpxLongitude(double longitude)
{
    const QString text = degreesText(longitude);
    return text == "180"_L1 ? u"-180"_s : text;
}

void putGpx(const PlacedFile &file, OutputBuffer &out)
{
    const QString time = universalTime(file.date);
    out.putText(R"(<wpt lat=")"_L1 + degreesText(file.location.latitude) + R"(" lon=")"_L1
                + gpxLongitude(file.location.longitude) + R"(">)"_L1);
    putElement("time"_L1, time, out);
    putElement("name"_L1, lastPathComponent(file.path), out);
    putElement("cmt"_L1, time.isEmpty() ? file.date : QString(), out);
    putElement("desc"_L1, file.path, out);
    if (!file.path.isEmpty())
        out.putText(R"(<link href=")"_L1 + xmlText(QString::fromLatin1(fileUri(file.path))) + R"("/>)"_L1);
    out.put("</wpt>");
}

void putCsv(const PlacedFile &file, OutputBuffer &out)
{
    const QString separator = Utilities::csvSeparator();
    const QStringList private_{lastPathComponent(file.path), file.path};
    // A number has no quotes: what guards texts would make one below 0 a text.
    out.putText(Utilities::csvEscapeAndQuoteArray(private_) + separator + degreesText(file.location.latitude)
                + separator + degreesText(file.location.longitude) + separator
                + Utilities::csvEscapeAndQuote(file.date));
}

constexpr std::array kPlaceFormats{
    PlaceFormat{.key = "geojson"_L1,
                .head = "{\"type\":\"FeatureCollection\",\"features\":[\n",
                .between = ",\n",
                .tail = "\n]}",
                .put = putGeoJson},
    PlaceFormat{.key = "kml"_L1,
                .head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<kml xmlns=\"http://www.opengis.net/kml/2.2\"><Document>\n",
                .between = "\n",
                .tail = "\n</Document></kml>",
                .put = putKml},
    PlaceFormat{.key = "gpx"_L1,
                .head
                = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                  "<gpx version=\"1.1\" creator=\"Quorvin\" xmlns=\"http://www.topografix.com/GPX/1/1\">\n",
                .between = "\n",
                .tail = "\n</gpx>",
                .put = putGpx},
    PlaceFormat{.key = "csv"_L1,
                .head = "\xef\xbb\xbf\"Name\",\"Path\",\"Latitude\",\"Longitude\",\"Date\"\n",
                .between = "\n",
                .tail = "",
                .put = putCsv},
};

const PlaceFormat &placeFormatOf(const QString &key)
{
    const auto *const found
        = std::ranges::find_if(kPlaceFormats, [&](const PlaceFormat &each) { return each.key == key; });
    Q_ASSERT(found != kPlaceFormats.end());
    return *found;
}

} // namespace

QStringList placeFormats()
{
    QStringList keys;
    for (const PlaceFormat &format : kPlaceFormats)
        keys.append(format.key);
    return keys;
}

PlaceWriter::PlaceWriter(const QString &format, QIODevice &device, bool skipPrivate)
    : _format(placeFormatOf(format)), _out(device), _skipPrivate(skipPrivate)
{
}

void PlaceWriter::begin()
{
    _out.put(_format.head);
}

PlaceWriter::Result PlaceWriter::add(const PlacedFile &file)
{
    if (!isPossible(file.location)) {
        ++_impossible;
        return _out.result();
    }
    if (_written++ > 0)
        _out.put(_format.between);
    _format.put(_skipPrivate ? PlacedFile{{}, file.location, file.date} : file, _out);
    return _out.result();
}

PlaceWriter::Result PlaceWriter::finish()
{
    _out.put(_format.tail);
    return _out.flush();
}

} // namespace quorvin
