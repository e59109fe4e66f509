// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"

namespace quorvin::cli {

QList<Option> exportOptions();
Expected<void> checkExport(const Arguments &arguments);
Status runExport(const Context &context);

} // namespace quorvin::cli
