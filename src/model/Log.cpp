// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Log.h"

namespace quorvin {

Q_LOGGING_CATEGORY(lcQuorvin, "quorvin")
Q_LOGGING_CATEGORY(lcLibraries, "quorvin.libraries", QtInfoMsg)

} // namespace quorvin
