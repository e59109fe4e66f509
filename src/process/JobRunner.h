// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/Job.h"

#include <stop_token>

namespace quorvin {

/// Does jobs, one after the other: `begin` hands a job over, `await` waits until it has been worked on,
/// `take` gives its result. Between `await` and `take` the next job may already be handed over; it is worked
/// on while the result travels. One thread an object, from its start to its end.
class JobRunner {
public:
    JobRunner() = default;
    virtual ~JobRunner() = default;
    JobRunner(const JobRunner &) = delete;
    JobRunner &operator=(const JobRunner &) = delete;

    virtual void begin(const Job &job) = 0;
    /// False when a stop was asked for: the job is given up, and nothing is under way any more.
    virtual bool await(const std::stop_token &stop) = 0;
    /// The job fails when a stop is asked for while its result travels.
    virtual JobResult take(const std::stop_token &stop) = 0;

    /// All three in one; a job that is given up fails.
    JobResult run(const Job &job, const std::stop_token &stop = {});
};

} // namespace quorvin
