// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/Job.h"

#include "readers/RawReport.h"
#include "readers/RecordBuilder.h"

namespace quorvin {

JobResult doJob(const Job &job)
{
    const auto reason = [](Error error) { return std::move(error.description); };
    if (job.kind == Job::Kind::RawReport)
        return rawReport(job.source, job.path).map_error(reason).map([](QString report) {
            return JobAnswer{nullptr, std::move(report)};
        });
    return RecordBuilder(job.options)
        .dataAboutFile(job.path)
        .map_error(reason)
        .map([](QuorvinDataPtr record) {
            return JobAnswer{std::move(record), {}};
        });
}

} // namespace quorvin
