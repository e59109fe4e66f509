// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ImageReader.h"

#include "filefacts/FileStream.h"
#include "readers/image/ImageExtended.h"
#include "readers/image/ImageGeneral.h"
#include "readers/image/oEXIV2.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

/// What exiv2 sees little of and libheif reads again.
constexpr std::array kHeifTypes{
    QLatin1String("image/heic"),
    QLatin1String("image/heif"),
    QLatin1String("image/avif"),
};

} // namespace

Expected<RecordContents> readImage(const QString &filename, const RegularFile &file,
                                   const RecordOptions &options)
{
    auto image = oEXIV2::initWithFilename(filename, options.keepCover);
    if (image && std::ranges::find(kHeifTypes, image->data().mimeType) != kHeifTypes.end())
        image = oEXIV2::initWithHeifFilePath(filename);
    if (!image)
        return failure(QStringLiteral("Not an image"));
    RecordContents record;
    record.filename = filename;
    record.isImage = true;
    record.general = prepareExiv2General(image->data(), file, options);
    prepareFileStream(filename, record.general, record.groups);
    prepareExiv2Data(image->data(), record.general, record.groups);
    return record;
}

} // namespace quorvin
