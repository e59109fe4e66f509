// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ImageReader.h"

#include "filefacts/FileStream.h"
#include "readers/image/HeifReader.h"
#include "readers/image/ImageExtended.h"
#include "readers/image/ImageGeneral.h"
#include "readers/image/oEXIV2.h"

namespace quorvin {

Expected<RecordContents> readImage(const QString &filename, const RegularFile &file,
                                   const RecordOptions &options, const DigestWatch &watch)
{
    auto image = oEXIV2::initWithFile(file, filename, options.keepCover);
    if (image && isHeifType(image->data().mimeType.value_or(QString())))
        image = oEXIV2::initWithHeifFilePath(filename);
    if (!image)
        return failure(QStringLiteral("Not an image"));
    RecordContents record;
    record.filename = filename;
    record.isImage = true;
    record.general = prepareExiv2General(image->data(), file, options, watch);
    prepareFileStream(filename, record.general, PrivateFacts::InTreeOnly, record.groups);
    prepareExiv2Data(image->data(), record.general, record.groups);
    return record;
}

} // namespace quorvin
