// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"

namespace quorvin::cli {

QList<Option> listOptions();
Reads listReads(const Arguments &arguments);
Expected<void> checkList(const Arguments &arguments);
Status runList(const Context &context);

} // namespace quorvin::cli
