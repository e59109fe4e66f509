// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/RecordBuilder.h"

#include "filefacts/FileHash.h"
#include "model/FailureKind.h"
#include "model/Log.h"
#include "pictures/HeifImage.h"
#include "platform/RegularFile.h"
#include "readers/Location.h"
#include "readers/Ways.h"
#include "readers/image/ImageBrand.h"
#include "readers/image/oEXIV2.h"
#include "readers/mediainfo/oMediaInfo.h"

#include <mutex>

namespace quorvin {

namespace {

Expected<RecordContents> readByItsWays(const QString &filename, const RegularFile &file,
                                       const RecordOptions &options, const DigestWatch &watch,
                                       oExifToolStayOpenProcess *exifTool)
{
    Expected<RecordContents> contents = failure(FailureKind::NotUnderstood);
    for (const Way *way : waysFor(file.head(kBrandHeadLength), options)) {
        contents = way->read(filename, file, options, watch, exifTool);
        if (contents)
            break;
    }
    return contents;
}

QuorvinDataPtr recordOf(RecordContents contents)
{
    contents.groups.squeeze();
    contents.mapLocation = findMapLocation(contents);
    return std::make_shared<const QuorvinData>(std::move(contents));
}

} // namespace

void RecordBuilder::setupLibraries()
{
    static std::once_flag once;
    std::call_once(once, [] {
        oMediaInfo::setupLibrary();
        oEXIV2::setupLibrary();
        HeifImage::setupLibrary();
        FileHash::setupLibrary();
    });
}

Expected<QuorvinDataPtr> RecordBuilder::dataAboutFile(const QString &filename) const
{
    const auto file = RegularFile::open(filename);
    if (!file) {
        qCInfo(lcQuorvin).noquote() << "Failed to open" << filename << file.error().description;
        return tl::unexpected(file.error());
    }
    return readByItsWays(filename, *file, _options, _watch, _exifTool).map(recordOf);
}

} // namespace quorvin
