// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "process/Job.h"

namespace quorvin {

/// Does a job here and now, with the libraries of this process: one form a kind. Any thread, once the
/// libraries are set up. `watch` follows the digests of a record.
Expected<QuorvinDataPtr> doJob(const RecordRequest &request, const DigestWatch &watch = {});
Expected<Report> doJob(const ReportRequest &request, const DigestWatch &watch = {});
Expected<RemovalResult> doJob(const RemovalRequest &request, const DigestWatch &watch = {});

/// The one of the request's kind.
JobResult doJob(const JobRequest &request, const DigestWatch &watch = {});

} // namespace quorvin
