// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/JobRunner.h"

namespace quorvin {

namespace {

class InProcessRunner final : public JobRunner {
public:
    void begin(const Job &job) override { _job = job; }
    bool await(const std::stop_token &stop) override
    {
        if (stop.stop_requested())
            return false;
        // The next job may be handed over before this result is taken.
        _result = doJob(_job);
        return !stop.stop_requested();
    }
    JobResult take(const std::stop_token &) override { return std::move(_result); }

private:
    Job _job;
    JobResult _result;
};

} // namespace

JobResult JobRunner::run(const Job &job, const std::stop_token &stop)
{
    begin(job);
    return await(stop) ? take(stop) : JobResult(tl::unexpected(QStringLiteral("stopped")));
}

std::unique_ptr<JobRunner> makeInProcessRunner()
{
    return std::make_unique<InProcessRunner>();
}

} // namespace quorvin
