// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/Jobs.h"

#include "readers/RawReport.h"
#include "readers/RecordBuilder.h"

namespace quorvin {

Expected<QuorvinDataPtr> doJob(const RecordRequest &request)
{
    return RecordBuilder(request.options).dataAboutFile(request.path);
}

Expected<Report> doJob(const ReportRequest &request)
{
    return rawReport(request.source, request.path).map([](QString text) { return Report{std::move(text)}; });
}

JobResult doJob(const JobRequest &request)
{
    return std::visit([](const auto &kind) { return JobResult(doJob(kind)); }, request);
}

} // namespace quorvin
