// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Arguments.h"
#include "model/Error.h"

namespace quorvin::cli {

/// All paths of a call, absolute, those of --files-from last. The error is one line.
Expected<QStringList> inputPaths(const Arguments &arguments);

} // namespace quorvin::cli
