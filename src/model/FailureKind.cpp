// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/FailureKind.h"

#include <array>

namespace quorvin {

namespace {

constexpr std::array kWords{
    QLatin1String(""),
    QLatin1String("Failed to convert the date"),
    QLatin1String("the reader can not be started"),
    QLatin1String("stopped"),
    QLatin1String("stopped: took too long"),
    QLatin1String("stopped: used too much memory"),
    QLatin1String("stopped: the reader crashed"),
    QLatin1String("stopped: set aside as slow"),
    QLatin1String("stopped: exiftool broke down"),
    QLatin1String("exiftool is not installed"),
    QLatin1String("skipped"),
    QLatin1String("Can not process the file"),
}; ///< by `FailureKind`
static_assert(kWords.size() == static_cast<std::size_t>(FailureKind::NotUnderstood) + 1);

} // namespace

QString wordsOf(FailureKind kind)
{
    return kWords.at(static_cast<std::size_t>(kind));
}

tl::unexpected<Error> failure(FailureKind kind)
{
    return tl::unexpected(Error{kErrorDomain, static_cast<int>(kind), wordsOf(kind)});
}

FailureKind kindOf(const Error &error)
{
    const bool isKind = error.domain == kErrorDomain && error.code > 0
        && static_cast<std::size_t>(error.code) < kWords.size();
    return isKind ? static_cast<FailureKind>(error.code) : FailureKind::Other;
}

} // namespace quorvin
