// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/Location.h"

#include "filefacts/Captures.h"

#include <charconv>

namespace quorvin {

namespace {

/// As far as the text is a number; 0 when it is none.
double leadingNumber(const QString &text)
{
    const QByteArray digits = text.toLatin1();
    double value = 0;
    std::from_chars(digits.begin(), digits.end(), value);
    return value;
}

double signedNumber(const QString &sign, const QString &digits)
{
    return sign == QLatin1String("-") ? -leadingNumber(digits) : leadingNumber(digits);
}

std::optional<Location> locationOfImage(const GeneralFacts &general)
{
    if (!general.latitude || !general.longitude)
        return std::nullopt;
    return Location{*general.latitude, *general.longitude};
}

} // namespace

std::optional<Location> locationFromIso6709(const QString &text)
{
    const auto parts = Utilities::captureFirstComponentsMatchedByRegex(
        QStringLiteral("^([+-]{1})([0-9\\.]+)([+-]{1})([0-9\\.]+)(([+-]{1})([0-9\\.]+))?"), text);
    if (!parts || parts->size() < 8)
        return std::nullopt;
    return Location{signedNumber(parts->at(1), parts->at(2)), signedNumber(parts->at(3), parts->at(4))};
}

std::optional<Location> findMapLocation(const RecordContents &record)
{
    if (record.isImage)
        return locationOfImage(record.general);
    const ParameterGroups::Group *container = record.groups.group(u"Container");
    if (!container || container->streams.empty())
        return std::nullopt;
    const auto &stream = container->streams.front();
    auto text = record.groups.lookUp(stream, u"com.apple.quicktime.location.ISO6709");
    if (!text)
        text = record.groups.lookUp(stream, u"xyz");
    return text ? locationFromIso6709(*text) : std::nullopt;
}

} // namespace quorvin
