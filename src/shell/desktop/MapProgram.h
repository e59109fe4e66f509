// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "model/Location.h"

namespace quorvin {

/// Whether the desktop has an application for "geo:" addresses. The first call reads what the desktop knows
/// of its applications, as `applicationsFor` does; those after it are cheap. Any thread.
bool hasMapProgram();

/// Shows a possible location in that application; the error is a sentence of the desktop's. Does not wait for
/// the application. Any thread.
Expected<void> openInMapProgram(const Location &location);

} // namespace quorvin
