// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"

namespace quorvin::cli {

/// Compares the files of the two folders of the call, pair by pair; a line each. Of those that need no look
/// at their partner nothing is read.
Status comparePairs(const Context &context);

} // namespace quorvin::cli
