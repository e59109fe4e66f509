// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/JobRunner.h"

#include <memory>

namespace quorvin {

/// Does the jobs in this process; sets the libraries up when that has not been done. Knows no limits, and a
/// job that never ends can't be stopped. Any thread.
std::unique_ptr<JobRunner> makeInProcessRunner();

} // namespace quorvin
