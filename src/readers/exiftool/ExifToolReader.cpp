// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/exiftool/ExifToolReader.h"

#include "filefacts/FileStream.h"
#include "model/Log.h"
#include "readers/exiftool/ExifToolImageInfo.h"

#include <QHash>

#include <utility>
#include <vector>

namespace quorvin {

namespace {

/// The kind of a file stays open here: neither format nor bit rate is known by a name of its own.
GeneralFacts prepareExiftoolGeneral(const ExifToolImageInfo &info, const RegularFile &file,
                                    const RecordOptions &options, const DigestWatch &watch)
{
    GeneralFacts general;
    static_cast<FileFacts &>(general) = getFileInfo(file, options, watch);
    general.imageSize = QString();
    general.duration = info.data().exifData.value(QStringLiteral("Duration")).value;
    return general;
}

} // namespace

Expected<RecordContents> readExifTool(const QString &filename, const RegularFile &file,
                                      const RecordOptions &options, const DigestWatch &watch,
                                      oExifToolStayOpenProcess *exifTool)
{
    const auto info = ExifToolImageInfo::initWithFilename(filename, exifTool);
    if (!info) {
        qCInfo(lcQuorvin).noquote() << "Failed to parse with exiftool:" << filename;
        return tl::unexpected(info.error());
    }
    RecordContents record;
    record.filename = filename;
    record.general = prepareExiftoolGeneral(*info, file, options, watch);
    prepareFileStream(filename, record.general, PrivateFacts::InTreeOnly, record.groups);
    prepareExiftoolData(*info, record.groups);
    return record;
}

void prepareExiftoolData(const ExifToolImageInfo &info, ParameterGroups &groups)
{
    std::vector<std::pair<QString, std::vector<QString>>> keysOfGroups;
    QHash<QString, std::size_t> places;
    for (const QString &key : info.data().exifKeys) {
        const QString group = info.data().exifData[key].ifd;
        if (!places.contains(group)) {
            places.insert(group, keysOfGroups.size());
            keysOfGroups.push_back({group, {}});
        }
        keysOfGroups[places[group]].second.push_back(key);
    }
    for (const auto &[group, keys] : keysOfGroups) {
        groups.beginGroup(group);
        groups.beginStream(0);
        for (const QString &key : keys) {
            const ExifToolImageInfo::Item item = info.data().exifData[key];
            groups.add(internTerm(key, item.label), item.value);
        }
    }
}

} // namespace quorvin
