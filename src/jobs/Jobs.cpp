// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/Jobs.h"

#include "pictures/Cover.h"
#include "pictures/WholePicture.h"
#include "readers/RawReport.h"
#include "readers/RecordBuilder.h"
#include "surgery/AttachmentExtraction.h"
#include "surgery/MetadataRemoval.h"
#include "surgery/PictureExtraction.h"

#include <algorithm>

namespace quorvin {

Expected<QuorvinDataPtr> doJob(const RecordRequest &request, const JobTools &tools)
{
    return RecordBuilder(request.options, tools.watch, tools.exifTool).dataAboutFile(request.path);
}

Expected<Report> doJob(const ReportRequest &request, const JobTools &tools)
{
    return rawReport(request.source, request.path, tools.exifTool).map([](QString text) {
        return Report{std::move(text)};
    });
}

Expected<RemovalResult> doJob(const RemovalRequest &request, const JobTools & /*tools*/)
{
    return request.copy.isEmpty() ? plannedRemoval(request.options, request.path)
                                  : removeMetadata(request.options, request.path, request.copy);
}

Expected<Picture> doJob(const PictureRequest &request, const JobTools & /*tools*/)
{
    auto picture = pictureOfFile(request.path, request.side, request.detail);
    const int side = picture ? std::max(picture->width, picture->height) : 0;
    if (side >= std::min(Cover::kMostSide, request.side))
        return picture;
    // What opens a raw photo as a picture sees its smallest thumbnail only; a song has its cover.
    const auto record = RecordBuilder(RecordOptions()).dataAboutFile(request.path);
    const QImage cover = record ? imageOfCover((*record)->generalInfo().cover) : QImage();
    return std::max(cover.width(), cover.height()) > side ? pictureOf(cover) : picture;
}

Expected<SavedFiles> doJob(const ExtractionRequest &request, const JobTools &tools)
{
    if (request.kind == ExtractionRequest::Kind::Pictures)
        return savePicturesOfFile(request.path, request.folder);
    return ExifToolUtilities::saveEmbeddedFilesFromFile(request.path, request.folder, tools.exifTool);
}

JobResult doJob(const JobRequest &request, const JobTools &tools)
{
    return std::visit([&](const auto &kind) { return JobResult(doJob(kind, tools)); }, request);
}

} // namespace quorvin
