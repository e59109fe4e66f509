// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/Ways.h"

#include "readers/exiftool/ExifToolReader.h"
#include "readers/image/ImageBrand.h"
#include "readers/image/ImageReader.h"
#include "readers/image/SystemImage.h"
#include "readers/mediainfo/MediaReader.h"

#include <array>

namespace quorvin {

namespace {

/// A reader that does without exiftool.
template <auto Read>
Expected<RecordContents> readAlone(const QString &filename, const RegularFile &file,
                                   const RecordOptions &options, const DigestWatch &watch,
                                   oExifToolStayOpenProcess * /*exifTool*/)
{
    return Read(filename, file, options, watch);
}

constexpr std::array kWays{
    Way{.name = QLatin1String("image"),
        .takes = [](QByteArrayView head, const RecordOptions &) { return brandMayBeImage(head); },
        .read = readAlone<readImage>},
    Way{.name = QLatin1String("system-image"),
        .takes = [](QByteArrayView head, const RecordOptions &) { return brandMayBeHeic(head); },
        .read = readAlone<readSystemImage>},
    Way{.name = QLatin1String("exiftool"),
        .takes = [](QByteArrayView, const RecordOptions &options) { return options.useExiftoolForVideo; },
        .read = readExifTool,
        .takesAnything = true},
    Way{.name = QLatin1String("media"),
        .takes = [](QByteArrayView, const RecordOptions &) { return true; },
        .read = readAlone<readMedia>,
        .takesAnything = true},
};

} // namespace

std::vector<const Way *> waysFor(QByteArrayView head, const RecordOptions &options)
{
    std::vector<const Way *> ways;
    for (const Way &way : kWays) {
        if (!way.takes(head, options))
            continue;
        ways.push_back(&way);
        if (way.takesAnything)
            break;
    }
    return ways;
}

} // namespace quorvin
