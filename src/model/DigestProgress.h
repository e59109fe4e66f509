// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#include <functional>

namespace quorvin {

/// How far the digests of a file have come, in bytes.
struct DigestProgress {
    quint64 done = 0;
    quint64 total = 0; ///< never less

    bool operator==(const DigestProgress &) const = default;
};

/// Is told of each piece of a file, on the thread that computes its digests; false gives them up. May be
/// empty.
using DigestWatch = std::function<bool(const DigestProgress &)>;

} // namespace quorvin
