// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/InProcessRunner.h"

#include "jobs/Jobs.h"
#include "process/oExifToolStayOpenProcess.h"
#include "readers/RecordBuilder.h"

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
        const auto follow = [&](const DigestProgress &progress) {
            if (watch().whenAdvanced)
                watch().whenAdvanced(progress);
            return !stop.stop_requested();
        };
        if (usesExifTool(_job.request))
            renewExifTool();
        _result = doJob(_job.request, {follow, _exifTool.get()});
        return !stop.stop_requested();
    }
    JobResult take(const std::stop_token &) override { return std::move(_result); }

private:
    void renewExifTool()
    {
        if (_exifTool && _exifTool->isRunning())
            return;
        _exifTool = oExifToolStayOpenProcess::init(
                        {_job.limits.memoryMiB, std::chrono::seconds(_job.limits.wallSeconds)})
                        .value_or(nullptr);
    }

    Job _job;
    std::unique_ptr<oExifToolStayOpenProcess> _exifTool;
    JobResult _result;
};

} // namespace

std::unique_ptr<JobRunner> makeInProcessRunner()
{
    RecordBuilder::setupLibraries();
    return std::make_unique<InProcessRunner>();
}

} // namespace quorvin
