// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/ChangeableRows.h"

#include "filefacts/ExtendedAttributes.h"
#include "model/ExtTreeItem.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

using L = QLatin1String;

constexpr std::array kAttributes{
    std::pair{L("FileFrom"), L("com.apple.metadata:kMDItemWhereFroms")},
    std::pair{L("FileFromDate"), L("com.apple.metadata:kMDItemDownloadedDate")},
    std::pair{L("FileFinderComment"), L("com.apple.metadata:kMDItemFinderComment")},
    std::pair{L("FileLabel"), L("com.apple.metadata:_kMDItemUserTags")},
    std::pair{L("FileTags"), L("com.apple.metadata:_kMDItemUserTags")},
};

} // namespace

std::optional<QString> attributeOfKey(const QString &key)
{
    const auto row = std::ranges::find_if(kAttributes, [&](const auto &pair) { return key == pair.first; });
    return row == kAttributes.end() ? std::nullopt : std::optional<QString>(row->second);
}

bool showsTouchDate(const ExtTreeItem &row)
{
    return row.key() == QStringLiteral("Encoded_Date") && Utilities::isTouchDate(row.stringValue());
}

} // namespace quorvin
