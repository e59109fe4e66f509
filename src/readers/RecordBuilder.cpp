// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/RecordBuilder.h"

#include "model/Log.h"
#include "platform/RegularFile.h"
#include "readers/Location.h"
#include "readers/image/ImageBrand.h"
#include "readers/image/ImageReader.h"
#include "readers/image/SystemImage.h"
#include "readers/image/oEXIV2.h"
#include "readers/mediainfo/MediaReader.h"
#include "readers/mediainfo/oMediaInfo.h"

namespace quorvin {

namespace {

using Contents = tl::expected<RecordContents, QString>;
using Reader = Contents (*)(const QString &filename, const RegularFile &file, const RecordOptions &options);

/// Null for a way whose reader is not part of this build: it accepts no file.
constexpr Reader readerOf(Way way)
{
    switch (way) {
    case Way::Image:
        return readImage;
    case Way::SystemImage:
        return readSystemImage;
    case Way::Media:
        return readMedia;
    case Way::ExifTool:
        break;
    }
    return nullptr;
}

Contents readByItsWays(const QString &filename, const RegularFile &file, const RecordOptions &options)
{
    Contents contents = tl::unexpected(QStringLiteral("Can not process the file"));
    for (const Way way : waysFor(file.head(kBrandHeadLength), options)) {
        const Reader reader = readerOf(way);
        if (!reader)
            continue;
        contents = reader(filename, file, options);
        if (contents)
            break;
    }
    return contents;
}

} // namespace

std::vector<Way> waysFor(QByteArrayView head, const RecordOptions &options)
{
    std::vector<Way> ways;
    if (brandMayBeImage(head))
        ways.push_back(Way::Image);
    if (brandMayBeHeic(head))
        ways.push_back(Way::SystemImage);
    const bool exiftool = options.useExiftoolForVideo && readerOf(Way::ExifTool);
    ways.push_back(exiftool ? Way::ExifTool : Way::Media);
    return ways;
}

void RecordBuilder::setupLibraries()
{
    oMediaInfo::setupLibrary();
    oEXIV2::setupLibrary();
}

tl::expected<QuorvinDataPtr, QString> RecordBuilder::dataAboutFile(const QString &filename) const
{
    const auto file = RegularFile::open(filename);
    if (!file) {
        qCInfo(lcQuorvin).noquote() << "Failed to open" << filename << file.error();
        return tl::unexpected(file.error());
    }
    Contents contents = readByItsWays(filename, *file, _options);
    if (!contents)
        return tl::unexpected(contents.error());
    contents->groups.squeeze();
    contents->mapLocation = findMapLocation(*contents);
    return std::make_shared<const QuorvinData>(std::move(*contents));
}

} // namespace quorvin
