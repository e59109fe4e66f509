// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ImageBrand.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

constexpr std::array<QByteArrayView, 5> kImageBrands{"JXL ", "crx ", "msf1", "mif1", "miaf"};
constexpr std::array<QByteArrayView, 3> kImageBrandBeginnings{"avi", "hei", "hev"};

} // namespace

bool brandMayBeImage(QByteArrayView head)
{
    if (head.size() < 12 || head.sliced(4, 4) != QByteArrayView("ftyp"))
        return true;
    const QByteArrayView brand = head.sliced(8, 4);
    return std::ranges::find(kImageBrands, brand) != kImageBrands.end()
        || std::ranges::any_of(kImageBrandBeginnings,
                               [&](QByteArrayView beginning) { return brand.startsWith(beginning); });
}

} // namespace quorvin
