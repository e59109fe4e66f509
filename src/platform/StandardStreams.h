// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quorvin {

/// The standard streams of this process, kept for what the program itself has to say.
struct StandardStreams {
    int output;
    int errors;
};

/// Takes the two streams away from the libraries: what they print on their own goes nowhere, or, with the log
/// category of the libraries at debug level, to standard error. Log messages keep their way to standard
/// error. The descriptors stay open for the life of the process. Call once, before any thread.
StandardStreams takeStandardStreams();

} // namespace quorvin
