// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/Job.h"

namespace quorvin {

/// Does a job here and now, with the libraries of this process: one form a kind. Any thread, once the
/// libraries are set up.
Expected<QuorvinDataPtr> doJob(const RecordRequest &request);
Expected<Report> doJob(const ReportRequest &request);

/// The one of the request's kind.
JobResult doJob(const JobRequest &request);

} // namespace quorvin
