// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/Jobs.h"

#include "readers/RawReport.h"
#include "readers/RecordBuilder.h"
#include "surgery/MetadataRemoval.h"

namespace quorvin {

Expected<QuorvinDataPtr> doJob(const RecordRequest &request, const DigestWatch &watch)
{
    return RecordBuilder(request.options, watch).dataAboutFile(request.path);
}

Expected<Report> doJob(const ReportRequest &request, const DigestWatch &)
{
    return rawReport(request.source, request.path).map([](QString text) { return Report{std::move(text)}; });
}

Expected<RemovalResult> doJob(const RemovalRequest &request, const DigestWatch &)
{
    return request.copy.isEmpty() ? plannedRemoval(request.options, request.path)
                                  : removeMetadata(request.options, request.path, request.copy);
}

JobResult doJob(const JobRequest &request, const DigestWatch &watch)
{
    return std::visit([&](const auto &kind) { return JobResult(doJob(kind, watch)); }, request);
}

} // namespace quorvin
