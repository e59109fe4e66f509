// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"

namespace quorvin::cli {

/// Removes metadata from images.
QList<Option> stripOptions();
Expected<void> checkStrip(const Arguments &arguments);
Status runStrip(const Context &context);

} // namespace quorvin::cli
