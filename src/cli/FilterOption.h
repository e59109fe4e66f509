// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"

namespace quorvin::cli {

/// --filter, for the commands that read the files they tell of.
Option filterOption();

/// The text of a mistake in the rule of a call as lines to show: the rule's own line and a caret.
QStringList linesOf(const RuleMistake &mistake, const QString &rule);

} // namespace quorvin::cli
