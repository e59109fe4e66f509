// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ImageBrand.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

constexpr std::array<QByteArrayView, 5> kImageBrands{"JXL ", "crx ", "msf1", "mif1", "miaf"};
constexpr std::array<QByteArrayView, 3> kHeifBrands{"mif1", "msf1", "miaf"};
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

bool brandMayBeHeic(QByteArrayView head)
{
    if (head.size() < 12 || head.sliced(4, 4) != QByteArrayView("ftyp"))
        return false;
    const QByteArrayView brand = head.sliced(8, 4);
    const bool still = std::ranges::find(kHeifBrands, brand) != kHeifBrands.end() || brand.startsWith("hei")
        || brand.startsWith("hev");
    return still && head.indexOf("avif") < 0;
}

} // namespace quorvin
