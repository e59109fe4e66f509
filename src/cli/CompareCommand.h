// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"

namespace quorvin::cli {

QList<Option> compareOptions();
Expected<void> checkCompare(const Arguments &arguments);
Status runCompare(const Context &context);

} // namespace quorvin::cli
