// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "model/Picture.h"
#include "model/QuorvinData.h"
#include "model/RecordOptions.h"
#include "model/RemovalResult.h"

#include <QString>

#include <variant>
#include <vector>

namespace quorvin {

/// Asks for the record of a file.
struct RecordRequest {
    using Result = QuorvinDataPtr; ///< never null

    QString path;
    RecordOptions options;
};

struct Report {
    QString text;
};

/// Asks for what a library says of a file.
struct ReportRequest {
    using Result = Report;

    QString path;
    QString source; ///< name of the report
    bool usesExifTool = false;
};

struct SavedFiles {
    std::vector<QString> paths;
    std::vector<QString> problems; ///< with what could not be written, each with what it is
};

/// Asks for what is inside a file, as files in a folder; its process may write there.
struct ExtractionRequest {
    using Result = SavedFiles;
    enum class Kind : quint8 {
        Attachments, ///< of Matroska files
        Pictures, ///< covers, thumbnails and previews
    };

    QString path;
    QString folder; ///< exists
    Kind kind = Kind::Attachments;
};

/// Writes an image without some of its metadata, which only a writer can do.
struct RemovalRequest {
    using Result = RemovalResult;

    QString path; ///< of the image, which stays as it is
    QString copy; ///< an empty file, which gets the result; "" only tells what would go
    oEXIV2Metadata options;
};

/// Asks for the picture of a file to look at: the file itself, or the cover that it carries.
struct PictureRequest {
    using Result = Picture;

    QString path;
    int side = Picture::kMostSide; ///< most pixels of its longer side
    Picture::Detail detail = Picture::Detail::Full;
};

template <typename... Requests>
struct JobKinds {
    using Request = std::variant<Requests...>;
    using Answer = std::variant<typename Requests::Result...>;
};

/// All that a guarded process can be asked for. The answer to a request stands at the request's place.
using AllJobs = JobKinds<RecordRequest, ReportRequest, RemovalRequest, ExtractionRequest, PictureRequest>;
using JobRequest = AllJobs::Request;
using JobAnswer = AllJobs::Answer;
using JobResult = Expected<JobAnswer>;

inline const QString &pathOf(const JobRequest &request)
{
    return std::visit([](const auto &kind) -> const QString & { return kind.path; }, request);
}

/// How far a job may go before its process is ended.
struct JobLimits {
    int cpuSeconds = 20; ///< of processor time
    int wallSeconds = 60; ///< from its start to its end
    int memoryMiB = 2048; ///< that it takes; the file itself, mapped, does not count
};

struct Job {
    JobRequest request;
    JobLimits limits;
};

/// What of a library's settings a job changes for good in its process: two jobs share a process only where
/// this is equal.
inline QString libraryStateOf(const JobRequest &request)
{
    const auto *report = std::get_if<ReportRequest>(&request);
    return report ? report->source : QString();
}

/// Whether a job is done with the help of exiftool, which then runs beside its process.
inline bool usesExifTool(const JobRequest &request)
{
    const auto *record = std::get_if<RecordRequest>(&request);
    const auto *report = std::get_if<ReportRequest>(&request);
    const auto *extraction = std::get_if<ExtractionRequest>(&request);
    return (record && record->options.useExiftoolForVideo) || (report && report->usesExifTool)
        || (extraction && extraction->kind == ExtractionRequest::Kind::Attachments);
}

/// The one folder that a job writes into; "" for none.
inline QString targetOf(const JobRequest &request)
{
    const auto *extraction = std::get_if<ExtractionRequest>(&request);
    return extraction ? extraction->folder : QString();
}

} // namespace quorvin
