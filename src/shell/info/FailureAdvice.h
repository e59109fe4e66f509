// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

struct JobLimits;

/// Why a file has no record, for people.
struct FailureAdvice {
    QString sentence; ///< what happened
    QString limit; ///< the limit that was met, and where it stands; "" when none was
    bool mayHaveReport = true; ///< a library may still tell something of the file
};

/// `reason` is that of the analysis, `limits` are those under which it ran. A reason that is not known is
/// told as it is. Any thread.
FailureAdvice adviceOn(const QString &reason, const JobLimits &limits);

} // namespace quorvin
