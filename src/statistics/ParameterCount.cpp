// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/ParameterCount.h"

namespace quorvin {

CountSum ParameterCount::sumOf(std::span<const quint32> filePlaces) const
{
    CountSum sum;
    for (const quint32 place : filePlaces) {
        ++sum.files;
        sum.duration += files[place].duration;
        sum.bytes += files[place].bytes;
    }
    return sum;
}

} // namespace quorvin
