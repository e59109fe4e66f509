// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

/// What an operation that reports details gives in place of its result.
struct Error {
    QString domain; ///< `kErrorDomain` for the system's own, `kPosixErrorDomain` for system calls
    int code = 0; ///< of the POSIX domain: errno
    QString description;
};

inline constexpr QLatin1String kErrorDomain("QUORVIN_ERROR");
inline constexpr QLatin1String kPosixErrorDomain("POSIX");

} // namespace quorvin
