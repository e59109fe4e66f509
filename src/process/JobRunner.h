// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "process/Job.h"

#include <chrono>
#include <functional>
#include <stop_token>
#include <utility>

namespace quorvin {

/// From then on a job counts as slow.
inline constexpr std::chrono::milliseconds kSlowJob{2000};

/// Who follows a job while it is awaited; both may be empty. `JobRunner` says what they are told.
struct JobWatch {
    std::function<bool(bool advances)> whenSlow;
    std::function<void(const DigestProgress &)> whenAdvanced;
};

/// Does jobs, one after the other: `begin` hands a job over, `await` waits until it has been worked on,
/// `take` gives its result. Between `await` and `take` the next job may already be handed over; it is worked
/// on while the result travels. One thread an object, from its start to its end.
class JobRunner {
public:
    JobRunner() = default;
    virtual ~JobRunner() = default;
    JobRunner(const JobRunner &) = delete;
    JobRunner &operator=(const JobRunner &) = delete;

    /// `whenSlow` is asked while a job is awaited, on the thread that awaits it, once it has taken
    /// `kSlowJob` of processor time; false gives the job up: it fails. Whether digests of its file advance is
    /// told along. A runner that can't tell asks never.
    void setWhenSlow(std::function<bool(bool)> whenSlow) { _watch.whenSlow = std::move(whenSlow); }
    /// Digests of the job that is awaited have advanced; on the same thread.
    void setWhenAdvanced(std::function<void(const DigestProgress &)> whenAdvanced)
    {
        _watch.whenAdvanced = std::move(whenAdvanced);
    }

    virtual void begin(const Job &job) = 0;
    /// False when a stop was asked for: the job is given up, and nothing is under way any more.
    virtual bool await(const std::stop_token &stop) = 0;
    /// The job fails when a stop is asked for while its result travels.
    virtual JobResult take(const std::stop_token &stop) = 0;

    /// All three in one; a job that is given up fails.
    JobResult run(const Job &job, const std::stop_token &stop = {});

protected:
    const JobWatch &watch() const { return _watch; }

private:
    JobWatch _watch;
};

} // namespace quorvin
