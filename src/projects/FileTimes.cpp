// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/FileTimes.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr qsizetype kDecimals = 9;

} // namespace

QByteArray textOfFileTime(const FileTime &time)
{
    return QByteArray::number(time.seconds) + '.'
        + QByteArray::number(time.nanoseconds).rightJustified(kDecimals, '0');
}

std::optional<FileTime> fileTimeFromText(QByteArrayView text)
{
    const qsizetype dot = text.indexOf('.');
    if (dot < 0 || text.size() - dot - 1 != kDecimals)
        return std::nullopt;
    const QByteArrayView decimals = text.sliced(dot + 1);
    bool isNumber = false;
    const FileTime time{text.first(dot).toByteArray().toLongLong(&isNumber), decimals.toByteArray().toInt()};
    const bool areDigits = std::ranges::all_of(decimals, [](char c) { return c >= '0' && c <= '9'; });
    return isNumber && areDigits ? std::optional(time) : std::nullopt;
}

} // namespace quorvin
