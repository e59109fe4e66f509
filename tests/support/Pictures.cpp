// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Pictures.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImage>

namespace quorvin::test {

namespace {

QImage gradient(QSize size)
{
    QImage image(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x % 256, y % 256, (x + y) % 256));
    }
    return image;
}

QByteArray bytesOf(Exiv2::Image &image)
{
    Exiv2::BasicIo &io = image.io();
    io.open();
    const Exiv2::DataBuf bytes = io.read(static_cast<long>(io.size()));
    return {reinterpret_cast<const char *>(bytes.pData_), bytes.size_};
}

heif_error append(heif_context *, const void *data, size_t size, void *bytes)
{
    static_cast<QByteArray *>(bytes)->append(static_cast<const char *>(data), static_cast<qsizetype>(size));
    return {heif_error_Ok, heif_suberror_Unspecified, "Ok"};
}

} // namespace

QByteArray picture(const char *format, QSize size, bool withProfile)
{
    QImage image = gradient(size);
    if (withProfile)
        image.setColorSpace(QColorSpace(QColorSpace::DisplayP3));
    QByteArray bytes;
    QBuffer device(&bytes);
    device.open(QIODevice::WriteOnly);
    image.save(&device, format);
    return bytes;
}

QByteArray withMetadata(const QByteArray &file, const Exiv2::ExifData &exif, const Exiv2::XmpData &xmp)
{
    const auto image = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte *>(file.constData()),
                                                 static_cast<long>(file.size()));
    image->readMetadata();
    image->setExifData(exif);
    image->setXmpData(xmp);
    image->writeMetadata();
    return bytesOf(*image);
}

std::unique_ptr<Exiv2::Image> imageWith(const Exiv2::ExifData &exif, const Exiv2::IptcData &iptc,
                                        const Exiv2::XmpData &xmp)
{
    std::unique_ptr<Exiv2::Image> image(Exiv2::ImageFactory::create(Exiv2::ImageType::jpeg).release());
    image->setExifData(exif);
    image->setIptcData(iptc);
    image->setXmpData(xmp);
    return image;
}

QByteArray heif(heif_compression_format format, QSize size, const QByteArray &exif, const QByteArray &xmp,
                int thumbnailSide)
{
    heif_context *context = heif_context_alloc();
    heif_encoder *encoder = nullptr;
    heif_context_get_encoder_for_format(context, format, &encoder);
    heif_image *image = nullptr;
    heif_image_create(size.width(), size.height(), heif_colorspace_RGB, heif_chroma_interleaved_RGB, &image);
    heif_image_add_plane(image, heif_channel_interleaved, size.width(), size.height(), 8);
    heif_image_handle *handle = nullptr;
    heif_context_encode_image(context, image, encoder, nullptr, &handle);
    if (!exif.isEmpty())
        heif_context_add_exif_metadata(context, handle, exif.constData(), static_cast<int>(exif.size()));
    if (!xmp.isEmpty())
        heif_context_add_XMP_metadata(context, handle, xmp.constData(), static_cast<int>(xmp.size()));
    if (thumbnailSide > 0) {
        heif_image_handle *thumbnail = nullptr;
        heif_context_encode_thumbnail(context, image, handle, encoder, nullptr, thumbnailSide, &thumbnail);
        heif_image_handle_release(thumbnail);
    }
    QByteArray bytes;
    heif_writer writer{1, append};
    heif_context_write(context, &writer, &bytes);
    heif_image_handle_release(handle);
    heif_image_release(image);
    heif_encoder_release(encoder);
    heif_context_free(context);
    return bytes;
}

QByteArray tiffBytes(const Exiv2::ExifData &exif)
{
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, exif);
    return {reinterpret_cast<const char *>(blob.data()), static_cast<qsizetype>(blob.size())};
}

} // namespace quorvin::test
