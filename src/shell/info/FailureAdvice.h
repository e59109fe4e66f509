// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

struct Error;
struct JobLimits;

/// Why a file has no record, for people.
struct FailureAdvice {
    QString sentence; ///< what happened
    QString limit; ///< the limit that was met, and where it stands; "" when none was
    bool mayHaveReport = true; ///< a library may still tell something of the file
};

/// `error` is that of the analysis, `limits` are those under which it ran. One of no kind is told as it is.
/// Any thread.
FailureAdvice adviceOn(const Error &error, const JobLimits &limits);

} // namespace quorvin
