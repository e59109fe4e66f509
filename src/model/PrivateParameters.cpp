// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/PrivateParameters.h"

#include "model/EnumNames.h"

#include <QLatin1String>

#include <algorithm>
#include <array>
#include <cstddef>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// Keys that begin so and whose last piece is that name, whatever the case. Pieces end in a full stop, a
/// colon or a slash, and places in lists count for nothing: "Xmp.iptcExt.PersonInImage[2]".
struct PrivateKey {
    QLatin1String start;
    QLatin1String name;
    PrivateKind kind;
};

constexpr std::array kPrivateKeys{
    PrivateKey{""_L1, "GPSLatitude"_L1, PrivateKind::Position},
    PrivateKey{""_L1, "GPSLongitude"_L1, PrivateKind::Position},
    PrivateKey{""_L1, "GPSPosition"_L1, PrivateKind::Position},
    PrivateKey{""_L1, "GPSCoordinates"_L1, PrivateKind::Position},
    PrivateKey{"com.apple.quicktime.location."_L1, "ISO6709"_L1, PrivateKind::Position},
    PrivateKey{"xyz"_L1, "xyz"_L1, PrivateKind::Position},
    PrivateKey{"Recorded"_L1, "Location"_L1, PrivateKind::Position},
    PrivateKey{"Recorded_Location"_L1, "Recorded_Location"_L1, PrivateKind::Position},
    PrivateKey{"Exif.Pentax"_L1, "Location"_L1, PrivateKind::Place},
    PrivateKey{"Exif.Pentax"_L1, "City"_L1, PrivateKind::Place},
    PrivateKey{"Exif.Panasonic"_L1, "City"_L1, PrivateKind::Place},
    PrivateKey{"Exif.Panasonic"_L1, "Location"_L1, PrivateKind::Place},
    PrivateKey{"Exif.Panasonic"_L1, "Landmark"_L1, PrivateKind::Place},
    PrivateKey{"Iptc."_L1, "City"_L1, PrivateKind::Place},
    PrivateKey{"Iptc."_L1, "SubLocation"_L1, PrivateKind::Place},
    PrivateKey{"Xmp."_L1, "City"_L1, PrivateKind::Place},
    PrivateKey{"Xmp.iptc"_L1, "Location"_L1, PrivateKind::Place},
    PrivateKey{"Xmp."_L1, "Sublocation"_L1, PrivateKind::Place},
    PrivateKey{""_L1, "SerialNumber"_L1, PrivateKind::SerialNumber},
    PrivateKey{""_L1, "SerialNumber2"_L1, PrivateKind::SerialNumber},
    PrivateKey{""_L1, "SerialNO"_L1, PrivateKind::SerialNumber},
    PrivateKey{""_L1, "BodySerialNumber"_L1, PrivateKind::SerialNumber},
    PrivateKey{""_L1, "CameraSerialNumber"_L1, PrivateKind::SerialNumber},
    PrivateKey{""_L1, "FlashSerialNumber"_L1, PrivateKind::SerialNumber},
    PrivateKey{""_L1, "InternalSerialNumber"_L1, PrivateKind::SerialNumber},
    PrivateKey{""_L1, "LensSerialNumber"_L1, PrivateKind::SerialNumber},
    PrivateKey{""_L1, "OwnerName"_L1, PrivateKind::Owner},
    PrivateKey{""_L1, "CameraOwnerName"_L1, PrivateKind::Owner},
    PrivateKey{"Xmp.xmpRights."_L1, "Owner"_L1, PrivateKind::Owner},
    PrivateKey{"Owner"_L1, "Owner"_L1, PrivateKind::Owner},
    PrivateKey{"Exif."_L1, "Artist"_L1, PrivateKind::Author},
    PrivateKey{"Exif."_L1, "XPAuthor"_L1, PrivateKind::Author},
    PrivateKey{"Exif."_L1, "Copyright"_L1, PrivateKind::Author},
    PrivateKey{"Iptc."_L1, "Byline"_L1, PrivateKind::Author},
    PrivateKey{"Iptc."_L1, "Writer"_L1, PrivateKind::Author},
    PrivateKey{"Iptc."_L1, "Copyright"_L1, PrivateKind::Author},
    PrivateKey{"Xmp.dc."_L1, "creator"_L1, PrivateKind::Author},
    PrivateKey{"Xmp.dc."_L1, "rights"_L1, PrivateKind::Author},
    PrivateKey{"Xmp.tiff."_L1, "Artist"_L1, PrivateKind::Author},
    PrivateKey{"Xmp.photoshop."_L1, "CaptionWriter"_L1, PrivateKind::Author},
    PrivateKey{"com.apple.quicktime."_L1, "author"_L1, PrivateKind::Author},
    PrivateKey{"FileAuthors"_L1, "FileAuthors"_L1, PrivateKind::Author},
    PrivateKey{"Xmp.iptcExt."_L1, "PersonInImage"_L1, PrivateKind::Person},
    PrivateKey{"Xmp.mwg-rs."_L1, "Name"_L1, PrivateKind::Person},
    PrivateKey{"Xmp.MP."_L1, "PersonDisplayName"_L1, PrivateKind::Person},
    PrivateKey{"Iptc."_L1, "Contact"_L1, PrivateKind::Contact},
    PrivateKey{"Xmp."_L1, "CiAdrExtadr"_L1, PrivateKind::Contact},
    PrivateKey{"Xmp."_L1, "CiEmailWork"_L1, PrivateKind::Contact},
    PrivateKey{"Xmp."_L1, "CiTelWork"_L1, PrivateKind::Contact},
    PrivateKey{"Xmp."_L1, "CiUrlWork"_L1, PrivateKind::Contact},
    PrivateKey{"FileFrom"_L1, "FileFrom"_L1, PrivateKind::Origin},
};

bool isPieceEnd(QChar c)
{
    return c == u'.' || c == u':' || c == u'/';
}

QStringView lastPiece(QStringView key)
{
    if (key.endsWith(u']'))
        key.truncate(std::max<qsizetype>(key.lastIndexOf(u'['), 0));
    const auto end = std::find_if(key.rbegin(), key.rend(), isPieceEnd);
    return key.last(end - key.rbegin());
}

} // namespace

std::optional<PrivateKind> privateKindOf(QStringView key)
{
    const QStringView name = lastPiece(key);
    const auto *const found = std::ranges::find_if(kPrivateKeys, [&](const PrivateKey &row) {
        return name.compare(row.name, Qt::CaseInsensitive) == 0
            && key.startsWith(row.start, Qt::CaseInsensitive);
    });
    return found == kPrivateKeys.end() ? std::nullopt : std::optional(found->kind);
}

bool isTelling(QByteArrayView value)
{
    return std::ranges::any_of(value, [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return (byte >= '1' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z')
            || byte >= 0x80;
    });
}

std::vector<PrivateKind> privateKindsIn(const ParameterGroups &groups)
{
    std::array<bool, countOfEnumerators<PrivateKind>()> isThere{};
    for (const auto &group : groups.groups()) {
        for (const auto &stream : group.streams) {
            for (const auto &parameter : groups.parameters(stream)) {
                if (parameter.flags.testFlag(ParameterFlag::SkipInExtended))
                    continue;
                const auto kind = privateKindOf(parameter.term->key);
                if (kind && isTelling(groups.utf8Value(parameter)))
                    isThere[static_cast<std::size_t>(*kind)] = true;
            }
        }
    }
    std::vector<PrivateKind> kinds;
    for (std::size_t i = 0; i < isThere.size(); ++i) {
        if (isThere[i])
            kinds.push_back(static_cast<PrivateKind>(i));
    }
    return kinds;
}

} // namespace quorvin
