// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/JobRunner.h"

#include "model/FailureKind.h"

namespace quorvin {

JobResult JobRunner::run(const Job &job, const std::stop_token &stop)
{
    begin(job);
    return await(stop) ? take(stop) : failure(FailureKind::Stopped);
}

} // namespace quorvin
