// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/MediaReader.h"

#include "filefacts/FileStream.h"
#include "model/FailureKind.h"
#include "model/Log.h"
#include "readers/mediainfo/MediaExtended.h"
#include "readers/mediainfo/MediaGeneral.h"
#include "readers/mediainfo/oMediaInfo.h"

namespace quorvin {

Expected<RecordContents> readMedia(const QString &filename, const RegularFile &file,
                                   const RecordOptions &options, const DigestWatch &watch)
{
    oMediaInfo info;
    if (!info.Open(filename)) {
        qCInfo(lcQuorvin).noquote() << "Failed to parse with MI:" << filename;
        return failure(FailureKind::NotUnderstood);
    }
    RecordContents record;
    record.filename = filename;
    prepareMediainfoGeneral(info, file, options, watch, record);
    prepareFileStream(filename, record.general, PrivateFacts::Everywhere, record.groups);
    prepareMediainfoData(info, options, record.groups);
    return record;
}

} // namespace quorvin
