// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/PlacedFile.h"

#include <QDate>
#include <QRegularExpression>

#include <array>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// Where a record may tell when it was recorded.
struct DateSource {
    QStringView group;
    QStringView key;
    QStringView zoneKey; ///< of a parameter beside it that has the zone; "" for none
};

/// The first that tells a date counts. Those of containers are from the most to the least telling: what was
/// encoded may have been recorded long before.
constexpr std::array kDateSources{
    DateSource{u"EXIF", u"Exif.Photo.DateTimeOriginal", u"Exif.Photo.OffsetTimeOriginal"},
    DateSource{u"Image", u"Exif.Image.DateTimeOriginal", {}},
    DateSource{u"XMP", u"Xmp.exif.DateTimeOriginal", {}},
    DateSource{u"Container", u"com.apple.quicktime.creationdate", {}},
    DateSource{u"Container", u"Recorded_Date", {}},
    DateSource{u"Container", u"Encoded_Date", {}},
};

bool isDay(const QString &year, const QString &month, const QString &day)
{
    const auto numberOr
        = [](const QString &text, int absent) { return text.isEmpty() ? absent : text.toInt(); };
    return year.toInt() > 0 && QDate::isValid(year.toInt(), numberOr(month, 1), numberOr(day, 1));
}

/// "+01:00" of +0100 and the like, "Z" of universal time; absent for what is no zone on Earth.
std::optional<QString> isoZone(const QString &zone)
{
    constexpr int kFarthest = 14;
    constexpr int kSixty = 60;
    if (zone.isEmpty() || zone == "UTC"_L1)
        return zone.isEmpty() ? zone : u"Z"_s;
    if (zone == "Z"_L1)
        return zone;
    const int hours = zone.sliced(1, 2).toInt();
    const int minutes = zone.last(2).toInt();
    if (minutes >= kSixty || hours * kSixty + minutes > kFarthest * kSixty)
        return std::nullopt;
    return zone.first(3) + u':' + zone.last(2);
}

/// Of the forms in which cameras and libraries write dates; "" for any other text.
QString isoDate(const QString &text)
{
    static const QRegularExpression form(
        u"^(\\d{4})(?:[-:](\\d\\d)(?:[-:](\\d\\d)"
        "(?:[T ]([01]\\d|2[0-3]):([0-5]\\d)(?::([0-5]\\d(?:\\.\\d+)?))? ?(UTC|Z|[-+]\\d\\d:?\\d\\d)?)?)?)?$"_s);
    const auto match = form.match(text.trimmed());
    const auto part = [&](int place) { return match.captured(place); };
    const auto zone = isoZone(part(7));
    if (!match.hasMatch() || !isDay(part(1), part(2), part(3)) || !zone)
        return {};
    QString date = part(1);
    for (const int place : {2, 3})
        date += part(place).isEmpty() ? QString() : u'-' + part(place);
    if (part(4).isEmpty())
        return date;
    return date + u'T' + part(4) + u':' + part(5) + u':' + (part(6).isEmpty() ? u"00"_s : part(6)) + *zone;
}

QString dateFrom(const DateSource &source, const ParameterGroups &groups)
{
    const auto *group = groups.group(source.group);
    if (!group || group->streams.empty())
        return {};
    const auto told
        = [&](QStringView key) { return groups.lookUp(group->streams.front(), key).value_or(QString()); };
    const QString date = told(source.key).trimmed();
    const QString withZone = source.zoneKey.isEmpty() ? QString() : isoDate(date + told(source.zoneKey));
    return withZone.isEmpty() ? isoDate(date) : withZone;
}

} // namespace

QString recordedDate(const QuorvinData &record)
{
    for (const DateSource &source : kDateSources) {
        if (QString date = dateFrom(source, record.groups()); !date.isEmpty())
            return date;
    }
    return {};
}

std::optional<PlacedFile> placedFile(const QString &path, const QuorvinData &record)
{
    if (!record.mapLocation())
        return std::nullopt;
    return PlacedFile{path, *record.mapLocation(), recordedDate(record)};
}

} // namespace quorvin
