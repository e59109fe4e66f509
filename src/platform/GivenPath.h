// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>

namespace quorvin {

/// The absolute path of what a person has typed, as `absolutePath` makes it. An error for an empty word,
/// which is a variable that was not set and never means the current folder, and for a relative path when the
/// current folder is gone. Any thread.
Expected<QString> pathOfGiven(const QString &word);

} // namespace quorvin
