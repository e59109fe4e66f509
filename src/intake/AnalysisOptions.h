// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/RecordOptions.h"
#include "platform/Settings.h"

namespace quorvin {

/// How records are to be built by the settings as they stand now. Any thread.
RecordOptions recordOptionsFrom(const Settings &settings);

} // namespace quorvin
