// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/InProcessRunner.h"

#include "jobs/Jobs.h"
#include "readers/RecordBuilder.h"

namespace quorvin {

namespace {

class InProcessRunner final : public JobRunner {
public:
    void begin(const Job &job) override { _request = job.request; }
    bool await(const std::stop_token &stop) override
    {
        if (stop.stop_requested())
            return false;
        // The next job may be handed over before this result is taken.
        _result = doJob(_request, [&](const DigestProgress &progress) {
            if (watch().whenAdvanced)
                watch().whenAdvanced(progress);
            return !stop.stop_requested();
        });
        return !stop.stop_requested();
    }
    JobResult take(const std::stop_token &) override { return std::move(_result); }

private:
    JobRequest _request;
    JobResult _result;
};

} // namespace

std::unique_ptr<JobRunner> makeInProcessRunner()
{
    RecordBuilder::setupLibraries();
    return std::make_unique<InProcessRunner>();
}

} // namespace quorvin
