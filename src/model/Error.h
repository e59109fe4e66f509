// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <tl/expected.hpp>

#include <cstring>

namespace quorvin {

inline constexpr QLatin1String kErrorDomain("QUORVIN_ERROR");
inline constexpr QLatin1String kPosixErrorDomain("POSIX");

/// Why an operation failed.
struct Error {
    QString domain; ///< `kErrorDomain` for the system's own, `kPosixErrorDomain` for system calls
    int code = 0; ///< of the POSIX domain: errno; of the own one: a `FailureKind`
    QString description; ///< the reason, for a person to read, without the path

    bool operator==(const Error &) const = default;
};

/// The one form of a result that may be missing for a reason.
template <typename Value>
using Expected = tl::expected<Value, Error>;

/// A failure of the system's own.
inline tl::unexpected<Error> failure(const QString &description)
{
    return tl::unexpected(Error{kErrorDomain, 0, description});
}

/// A failure of a system call, by its `errno`, in the words of the C library.
inline tl::unexpected<Error> posixFailure(int code)
{
    return tl::unexpected(Error{kPosixErrorDomain, code, QString::fromLocal8Bit(std::strerror(code))});
}

} // namespace quorvin
