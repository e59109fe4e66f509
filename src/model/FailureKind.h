// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>

namespace quorvin {

/// Failures of the system's own that others go by; the code of such an error.
enum class FailureKind {
    Other,
    WrongDate, ///< a text that is to be a date is none
    NoReader, ///< no process could be started for the job; its file has not been looked at
    Stopped, ///< nobody wants the result any more
    TookTooLong,
    TooMuchMemory,
    ReaderCrashed,
    SetAside, ///< as slow, while others were slow as well
    ExifToolBrokeDown,
    NoExifTool, ///< it is not installed
    Skipped, ///< before it was read
    NotUnderstood, ///< by the library that was to read it
};

/// What stands in errors, logs and exports; "" for `Other`. Any thread, as below.
QString wordsOf(FailureKind kind);

/// A failure of that kind, in those words.
tl::unexpected<Error> failure(FailureKind kind);

/// `Other` where the error is a failure of no kind.
FailureKind kindOf(const Error &error);

} // namespace quorvin
