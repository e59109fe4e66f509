// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/Previews.h"

#include "model/Log.h"
#include "readers/image/ExifTagFaces.h"
#include "readers/image/Exiv2Library.h"

#include <algorithm>

namespace quorvin {

namespace {

/// So many bytes as they stand in the file; fewer where it ends before.
QByteArray bytesAt(const Exiv2::Image &image, long position, long size)
{
    Exiv2::BasicIo &io = image.io();
    const Exiv2::IoCloser closer(io);
    if (io.open() != 0 || io.seek(position, Exiv2::BasicIo::beg) != 0)
        return {};
    const Exiv2::DataBuf bytes = io.read(size);
    return {reinterpret_cast<const char *>(bytes.pData_), bytes.size_};
}

/// Whether the library would take the length of a thumbnail resource less its header for a length, although
/// the resource is shorter than the header: it asks for 4 GiB then.
bool hasCutThumbnailResource(const Exiv2::Image &image)
{
    constexpr uint32_t kThumbnailHeader = 28;
    const auto isCut = [&](const Exiv2::NativePreview &preview) {
        if (preview.filter_ != "hex-irb")
            return false;
        const QByteArray resources
            = QByteArray::fromHex(bytesAt(image, preview.position_, static_cast<long>(preview.size_)));
        const Exiv2::byte *resource = nullptr;
        uint32_t headerSize = 0;
        uint32_t dataSize = 0;
        const bool found = Exiv2::Photoshop::locatePreviewIrb(
                               reinterpret_cast<const Exiv2::byte *>(resources.constData()),
                               static_cast<long>(resources.size()), &resource, &headerSize, &dataSize)
            == 0;
        return found && dataSize < kThumbnailHeader;
    };
    return std::ranges::any_of(image.nativePreviews(), isCut);
}

constexpr char kJpegType[] = "image/jpeg";
constexpr std::string_view kReducedImage = "1";
constexpr std::string_view kXmpThumbnails = "Xmp.xmp.Thumbnails";

/// Whether a tag leads the library to a preview, or says that the pixels of its directory are one.
bool showsPreview(const Exiv2::Exifdatum &datum)
{
    const ExifTagFace &face = faceOf(datum);
    return face.pointsToPreview || (face.tellsReduced && datum.toString() == kReducedImage);
}

/// The library also takes the main pixels for a preview where they are a file of their own, as in some raw
/// photos: what begins like one.
bool hasFileForPixels(const Exiv2::Image &image)
{
    constexpr long kBeginning = 256;
    static const exiv2::TagNumber strips("Exif.Image.StripOffsets");
    const Exiv2::Exifdatum *offsets = strips.in(image.exifData());
    if (!offsets || offsets->count() == 0)
        return false;
    const QByteArray beginning = bytesAt(image, exiv2::toLong(*offsets), kBeginning);
    return Exiv2::ImageFactory::getType(reinterpret_cast<const Exiv2::byte *>(beginning.constData()),
                                        static_cast<long>(beginning.size()))
        != Exiv2::ImageType::none;
}

/// Whether there is anything from which the library could make a preview.
bool mayHavePreviews(const Exiv2::Image &image)
{
    return !image.nativePreviews().empty() || std::ranges::any_of(image.exifData(), showsPreview)
        || hasFileForPixels(image) || std::ranges::any_of(image.xmpData(), [](const Exiv2::Xmpdatum &datum) {
               return datum.key().starts_with(kXmpThumbnails);
           });
}

/// The library looks for previews by some ninety keys, each through all tags.
void eraseAllButPreviews(Exiv2::ExifData &exif)
{
    for (auto datum = exif.begin(); datum != exif.end();)
        datum = faceOf(*datum).servesPreviews ? std::next(datum) : exif.erase(datum);
}

QString line(const Exiv2::PreviewProperties &preview, std::size_t size)
{
    return QStringLiteral("%1 x %2 (%3, %4 bytes)")
        .arg(preview.width_)
        .arg(preview.height_)
        .arg(QString::fromStdString(preview.mimeType_))
        .arg(size);
}

/// A JPEG that the library has measured is as long as its properties say. Native previews it has not looked
/// at, and others are made when they are fetched.
std::size_t sizeOf(const Exiv2::PreviewProperties &preview, const Exiv2::PreviewManager &manager,
                   bool isMeasured)
{
    return isMeasured && preview.mimeType_ == kJpegType ? preview.size_
                                                        : manager.getPreviewImage(preview).size();
}

void listPreviews(Exiv2::Image &image, bool keepThumb, ImageMetadata &result)
{
    if (!mayHavePreviews(image) || hasCutThumbnailResource(image))
        return;
    eraseAllButPreviews(image.exifData());
    const Exiv2::PreviewManager manager(image);
    const Exiv2::PreviewPropertiesList list = manager.getPreviewProperties();
    result.thumbCount = QString::number(list.size());
    if (list.empty())
        return;
    const bool isMeasured = image.nativePreviews().empty();
    std::vector<PreviewKind> kinds;
    QStringList lines;
    for (const Exiv2::PreviewProperties &properties : list) {
        kinds.push_back({static_cast<quint32>(properties.height_), properties.mimeType_ == kJpegType});
        lines.append(line(properties, sizeOf(properties, manager, isMeasured)));
    }
    result.previews = std::move(lines);
    if (!keepThumb)
        return;
    const Exiv2::PreviewImage best = manager.getPreviewImage(list[chosenPreview(kinds)]);
    result.thumb = QByteArray(reinterpret_cast<const char *>(best.pData()), best.size());
    result.thumbHeight = static_cast<int>(best.height());
}

} // namespace

std::size_t chosenPreview(const std::vector<PreviewKind> &previews)
{
    const auto isTall = [](const PreviewKind &preview) { return preview.height >= kTallPreview; };
    auto chosen = std::ranges::find_if(
        previews, [&](const PreviewKind &preview) { return preview.isJpeg && isTall(preview); });
    if (chosen == previews.end())
        chosen = std::ranges::find_if(previews, isTall);
    return chosen == previews.end() ? previews.size() - 1
                                    : static_cast<std::size_t>(chosen - previews.begin());
}

void prepareThumbnails(Exiv2::Image &image, const QString &filepath, bool keepThumb, ImageMetadata &result)
{
    try {
        listPreviews(image, keepThumb, result);
    } catch (const Exiv2::Error &error) {
        qCInfo(lcQuorvin).noquote() << "exiv2 exception in Thumbnails:" << error.what()
                                    << u'(' + filepath + u')';
    }
}

} // namespace quorvin
