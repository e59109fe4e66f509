// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLoggingCategory>

namespace quorvin {

/// The fixed phrases of this system: one line of free text each, at info level.
Q_DECLARE_LOGGING_CATEGORY(lcQuorvin)

/// What the format libraries say on their own, at debug level.
Q_DECLARE_LOGGING_CATEGORY(lcLibraries)

} // namespace quorvin
