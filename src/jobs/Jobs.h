// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "process/Job.h"

namespace quorvin {

class oExifToolStayOpenProcess;

/// What a job is done with beside the libraries of this process.
struct JobTools {
    DigestWatch watch = {}; ///< follows the digests of a record
    oExifToolStayOpenProcess *exifTool = nullptr; ///< for jobs that use it; null where it is not installed
};

/// Does a job here and now, with the libraries of this process: one form a kind. Any thread, once the
/// libraries are set up.
Expected<QuorvinDataPtr> doJob(const RecordRequest &request, const JobTools &tools = {});
Expected<Report> doJob(const ReportRequest &request, const JobTools &tools = {});
Expected<RemovalResult> doJob(const RemovalRequest &request, const JobTools &tools = {});
Expected<SavedFiles> doJob(const ExtractionRequest &request, const JobTools &tools = {});
Expected<Picture> doJob(const PictureRequest &request, const JobTools &tools = {});

/// The one of the request's kind.
JobResult doJob(const JobRequest &request, const JobTools &tools = {});

} // namespace quorvin
