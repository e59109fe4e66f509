// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/HeifImage.h"

#include "model/Log.h"
#include "platform/NativePath.h"

#include <algorithm>

namespace quorvin {

namespace {

Expected<void> checked(const heif_error &error)
{
    if (error.code == heif_error_Ok)
        return {};
    qCDebug(lcLibraries) << "libheif:" << error.message;
    return failure(QString::fromUtf8(error.message));
}

QSize sizeOf(const heif_image_handle *handle)
{
    return {heif_image_handle_get_width(handle), heif_image_handle_get_height(handle)};
}

qint64 pixels(QSize size)
{
    return qint64{size.width()} * size.height();
}

Expected<QImage> decodedPicture(const heif_image_handle *handle)
{
    const bool alpha = heif_image_handle_has_alpha_channel(handle) != 0;
    heif_image *picture = nullptr;
    const auto decoded = checked(
        heif_decode_image(handle, &picture, heif_colorspace_RGB,
                          alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, nullptr));
    if (!decoded)
        return tl::unexpected(decoded.error());
    const std::unique_ptr<heif_image, decltype(&heif_image_release)> owner(picture, &heif_image_release);
    int stride = 0;
    const uint8_t *bytes = heif_image_get_plane_readonly(picture, heif_channel_interleaved, &stride);
    if (!bytes)
        return failure(QStringLiteral("a picture without pixels"));
    const QImage view(bytes, heif_image_get_width(picture, heif_channel_interleaved),
                      heif_image_get_height(picture, heif_channel_interleaved), stride,
                      alpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    return view.copy();
}

} // namespace

Expected<HeifImage> HeifImage::open(const QString &path)
{
    Context context(heif_context_alloc(), &heif_context_free);
    heif_image_handle *primary = nullptr;
    return checked(heif_context_read_from_file(context.get(), encodePath(path).constData(), nullptr))
        .and_then([&] { return checked(heif_context_get_primary_image_handle(context.get(), &primary)); })
        .map([&] { return HeifImage(std::move(context), Handle(primary, &heif_image_handle_release)); });
}

int HeifImage::numberOfTopLevelImages() const
{
    return heif_context_get_number_of_top_level_images(_context.get());
}

int HeifImage::width() const
{
    return sizeOf(_handle.get()).width();
}

int HeifImage::height() const
{
    return sizeOf(_handle.get()).height();
}

int HeifImage::depth() const
{
    return heif_image_handle_get_luma_bits_per_pixel(_handle.get());
}

bool HeifImage::hasAlpha() const
{
    return heif_image_handle_has_alpha_channel(_handle.get()) != 0;
}

Expected<std::vector<HeifImage::Handle>> HeifImage::thumbnails() const
{
    std::vector<heif_item_id> ids(
        static_cast<std::size_t>(heif_image_handle_get_number_of_thumbnails(_handle.get())));
    heif_image_handle_get_list_of_thumbnail_IDs(_handle.get(), ids.data(), static_cast<int>(ids.size()));
    std::vector<Handle> handles;
    for (const heif_item_id id : ids) {
        heif_image_handle *thumbnail = nullptr;
        if (const auto got = checked(heif_image_handle_get_thumbnail(_handle.get(), id, &thumbnail)); !got)
            return tl::unexpected(got.error());
        handles.emplace_back(thumbnail, &heif_image_handle_release);
    }
    return handles;
}

Expected<std::vector<QSize>> HeifImage::thumbnailSizes() const
{
    return thumbnails().map([](const std::vector<Handle> &handles) {
        std::vector<QSize> sizes;
        sizes.reserve(handles.size());
        for (const Handle &thumbnail : handles)
            sizes.push_back(sizeOf(thumbnail.get()));
        return sizes;
    });
}

std::vector<heif_item_id> HeifImage::metadataBlocks() const
{
    std::vector<heif_item_id> ids(
        static_cast<std::size_t>(heif_image_handle_get_number_of_metadata_blocks(_handle.get(), nullptr)));
    heif_image_handle_get_list_of_metadata_block_IDs(_handle.get(), nullptr, ids.data(),
                                                     static_cast<int>(ids.size()));
    return ids;
}

QByteArrayView HeifImage::blockType(heif_item_id id) const
{
    return heif_image_handle_get_metadata_type(_handle.get(), id);
}

Expected<QByteArray> HeifImage::block(heif_item_id id) const
{
    const auto size = static_cast<qsizetype>(heif_image_handle_get_metadata_size(_handle.get(), id));
    QByteArray bytes(size, Qt::Uninitialized);
    return checked(heif_image_handle_get_metadata(_handle.get(), id, bytes.data())).map([&] {
        return bytes;
    });
}

QByteArray HeifImage::rawColorProfile() const
{
    if (heif_image_handle_get_color_profile_type(_handle.get()) == heif_color_profile_type_not_present)
        return {};
    const auto size = static_cast<qsizetype>(heif_image_handle_get_raw_color_profile_size(_handle.get()));
    QByteArray bytes(size, Qt::Uninitialized);
    return checked(heif_image_handle_get_raw_color_profile(_handle.get(), bytes.data())) ? bytes
                                                                                         : QByteArray();
}

Expected<QImage> HeifImage::decoded(int side, qint64 mostPixels) const
{
    const auto candidates = thumbnails();
    if (!candidates)
        return tl::unexpected(candidates.error());
    const heif_image_handle *chosen = _handle.get();
    for (const Handle &thumbnail : *candidates) {
        const QSize size = sizeOf(thumbnail.get());
        if (std::max(size.width(), size.height()) >= side && pixels(size) < pixels(sizeOf(chosen)))
            chosen = thumbnail.get();
    }
    if (pixels(sizeOf(chosen)) > mostPixels)
        return failure(QStringLiteral("too many pixels"));
    return decodedPicture(chosen);
}

} // namespace quorvin
