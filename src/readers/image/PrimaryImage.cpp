// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/PrimaryImage.h"

#include "readers/image/Exiv2Library.h"

#include <array>

namespace quorvin {

namespace {

constexpr std::array kGroups{
    "Image",     "SubImage1", "SubImage2", "SubImage3", "SubImage4",
    "SubImage5", "SubImage6", "SubImage7", "SubImage8", "SubImage9",
};

constexpr long kFullResolution = 0;

const Exiv2::Exifdatum *find(const Exiv2::ExifData &exif, const std::string &group, const char *tag)
{
    return exiv2::TagNumber("Exif." + group + '.' + tag).in(exif);
}

std::string primaryTiffGroup(const Exiv2::ExifData &exif)
{
    std::string primary = kGroups.front();
    for (const char *group : kGroups) {
        const auto *subfile = find(exif, group, "NewSubfileType");
        if (!subfile || subfile->count() == 0 || exiv2::toLong(*subfile) != kFullResolution)
            continue;
        primary = group;
        if (!find(exif, group, "JPEGInterchangeFormat"))
            break;
    }
    return primary;
}

long number(const Exiv2::ExifData &exif, const std::string &group, const char *tag)
{
    const auto *datum = find(exif, group, tag);
    return datum ? exiv2::toLong(*datum) : 0;
}

} // namespace

PrimaryImage primaryImage(const Exiv2::ExifData &exif)
{
    PrimaryImage image;
    image.group = primaryTiffGroup(exif);
    image.width = number(exif, image.group, "ImageWidth");
    image.height = number(exif, image.group, "ImageLength");
    return image;
}

} // namespace quorvin
