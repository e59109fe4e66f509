// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/Ways.h"

#include "readers/image/ImageBrand.h"
#include "readers/image/ImageReader.h"
#include "readers/image/SystemImage.h"
#include "readers/mediainfo/MediaReader.h"

#include <array>

namespace quorvin {

namespace {

constexpr std::array kWays{
    Way{.name = QLatin1String("image"),
        .takes = [](QByteArrayView head, const RecordOptions &) { return brandMayBeImage(head); },
        .read = readImage},
    Way{.name = QLatin1String("system-image"),
        .takes = [](QByteArrayView head, const RecordOptions &) { return brandMayBeHeic(head); },
        .read = readSystemImage},
    Way{.name = QLatin1String("media"),
        .takes = [](QByteArrayView, const RecordOptions &) { return true; },
        .read = readMedia,
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
