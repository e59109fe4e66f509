// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/HeifReader.h"

#include "model/Log.h"
#include "pictures/HeifImage.h"
#include "pictures/HeifLibrary.h"
#include "platform/RegularFile.h"
#include "readers/image/ExifExtraction.h"
#include "readers/image/Exiv2Library.h"
#include "readers/image/ImageBrand.h"
#include "readers/image/ImageProfile.h"
#include "readers/image/IptcXmpExtraction.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array<QByteArrayView, 2> kTiffHeaders{QByteArrayView("MM\0*", 4), QByteArrayView("II*\0", 4)};

QString brandText(heif_brand2 brand)
{
    std::array<char, 5> letters{};
    HeifLibrary::instance().brandLetters(brand, letters.data());
    return QString::fromLatin1(letters.data());
}

/// Where the TIFF begins in an Exif block, behind a prefix that is not read. Without one, the last four bytes
/// or the start of a shorter block, which then fail to open.
qsizetype tiffOffset(QByteArrayView block)
{
    const qsizetype last = std::max<qsizetype>(block.size() - 4, 0);
    for (qsizetype offset = 0; offset < last; ++offset) {
        if (std::ranges::find(kTiffHeaders, block.sliced(offset, 4)) != kTiffHeaders.end())
            return offset;
    }
    return block.size() < 5 ? 0 : last;
}

void readMetadata(Exiv2::Image &image)
{
    const exiv2::XmpSession session;
    image.readMetadata();
}

void readExifBlock(QByteArrayView block, ImageMetadata &result)
{
    if (block.isEmpty()) {
        qCInfo(lcQuorvin, "HEIF: Could not find location of TIFF header in Exif metadata");
        return;
    }
    if (const auto image = exiv2::openImage(block.sliced(tiffOffset(block)))) {
        readMetadata(*image);
        prepareExif(*image, result);
    }
}

void readXmpBlock(QByteArrayView block, ImageMetadata &result)
{
    if (const auto image = exiv2::openImage(block)) {
        const exiv2::XmpSession session;
        image->readMetadata();
        prepareXmp(*image, result);
    }
}

struct BlockKind {
    QByteArrayView type;
    const char *failure;
    void (*read)(QByteArrayView block, ImageMetadata &result);
};

constexpr std::array kBlockKinds{
    BlockKind{"Exif", "HEIF: failed to decode Exif", readExifBlock},
    BlockKind{"mime", "HEIF: failed to decode XMP", readXmpBlock},
};

bool readBlock(const BlockKind &kind, const Expected<QByteArray> &block, ImageMetadata &result)
try {
    if (block)
        kind.read(*block, result);
    return block.has_value();
} catch (const std::exception &error) {
    qCDebug(lcLibraries).noquote() << "exiv2:" << error.what();
    return false;
} catch (...) {
    return false;
}

void readBlocks(const HeifImage &image, ImageMetadata &result)
{
    for (const heif_item_id id : image.metadataBlocks()) {
        const QByteArrayView type = image.blockType(id);
        const auto *kind = std::ranges::find(kBlockKinds, type, &BlockKind::type);
        if (kind == kBlockKinds.end())
            continue;
        if (!readBlock(*kind, image.block(id), result))
            qCInfo(lcQuorvin, "%s", kind->failure);
    }
}

bool isAvif(const QString &path)
{
    const auto file = RegularFile::open(path);
    const auto brands = file ? compatibleBrands(file->head(kBrandHeadLength)) : std::nullopt;
    return brands && brands->contains("avif"_L1);
}

/// Last, since an Exif block brings the format and the size of a TIFF.
void takeImageFacts(const HeifImage &image, const std::vector<QSize> &thumbnails, ImageMetadata &result)
{
    result.imageWidth = QString::number(image.width());
    result.imageHeight = QString::number(image.height());
    result.imageCount = QString::number(image.numberOfTopLevelImages());
    result.thumbCount = QString::number(thumbnails.size());
    for (const QSize size : thumbnails)
        result.previews.append(u"%1 x %2"_s.arg(size.width()).arg(size.height()));
    if (const QByteArray icc = image.rawColorProfile(); !icc.isEmpty())
        prepareColorProfileWithData(icc, result);
}

} // namespace

bool isHeifType(const QString &mimeType)
{
    constexpr std::array kTypes{QLatin1String("image/heic"), QLatin1String("image/heif"),
                                QLatin1String("image/avif")};
    return std::ranges::find(kTypes, mimeType) != kTypes.end();
}

std::optional<QStringList> compatibleBrands(QByteArrayView head)
{
    if (head.size() < 12)
        return std::nullopt;
    const HeifLibrary &heif = HeifLibrary::instance();
    std::array<uint8_t, kBrandHeadLength> bytes{};
    std::copy_n(head.begin(), std::min<qsizetype>(head.size(), kBrandHeadLength), bytes.begin());
    QStringList brands{brandText(heif.mainBrand(bytes.data(), static_cast<int>(bytes.size())))};
    heif_brand2 *list = nullptr;
    int count = 0;
    const heif_error error = heif.compatibleBrands(
        bytes.data(), static_cast<int>(std::min<qsizetype>(head.size(), kBrandHeadLength)), &list, &count);
    if (error.code != heif_error_Ok) {
        qCInfo(lcQuorvin).noquote() << "HEIF: error reading brands:" << error.message;
        return brands;
    }
    for (int i = 0; i < count; ++i)
        brands.append(brandText(list[i]));
    heif.freeBrands(list);
    return brands;
}

Expected<ImageMetadata> readHeif(const QString &path)
{
    const auto read = [&](const HeifImage &image, const std::vector<QSize> &thumbnails) {
        ImageMetadata result;
        readBlocks(image, result);
        takeImageFacts(image, thumbnails, result);
        result.imageType = isAvif(path) ? u"AVIF"_s : u"HEIF"_s;
        return result;
    };
    auto metadata = HeifImage::open(path).and_then([&](const HeifImage &image) {
        return image.thumbnailSizes().map(
            [&](const std::vector<QSize> &thumbnails) { return read(image, thumbnails); });
    });
    if (!metadata)
        qCInfo(lcQuorvin).noquote() << "libheif:" << metadata.error().description;
    return metadata;
}

} // namespace quorvin
