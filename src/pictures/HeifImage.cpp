// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/HeifImage.h"

#include "platform/NativePath.h"

#include <algorithm>

namespace quorvin {

namespace {

void check(const heif_error &error)
{
    if (error.code != heif_error_Ok)
        throw heif::Error(error);
}

QSize sizeOf(const heif_image_handle *handle)
{
    return {heif_image_handle_get_width(handle), heif_image_handle_get_height(handle)};
}

qint64 pixels(QSize size)
{
    return qint64{size.width()} * size.height();
}

QImage decodedPicture(const heif_image_handle *handle)
{
    const bool alpha = heif_image_handle_has_alpha_channel(handle) != 0;
    heif_image *picture = nullptr;
    check(heif_decode_image(handle, &picture, heif_colorspace_RGB,
                            alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, nullptr));
    const std::unique_ptr<heif_image, decltype(&heif_image_release)> owner(picture, &heif_image_release);
    int stride = 0;
    const uint8_t *bytes = heif_image_get_plane_readonly(picture, heif_channel_interleaved, &stride);
    if (!bytes)
        return {};
    const QImage view(bytes, heif_image_get_width(picture, heif_channel_interleaved),
                      heif_image_get_height(picture, heif_channel_interleaved), stride,
                      alpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    return view.copy();
}

} // namespace

HeifImage HeifImage::open(const QString &path)
{
    Context context(heif_context_alloc(), &heif_context_free);
    check(heif_context_read_from_file(context.get(), encodePath(path).constData(), nullptr));
    heif_image_handle *primary = nullptr;
    check(heif_context_get_primary_image_handle(context.get(), &primary));
    return {std::move(context), Handle(primary, &heif_image_handle_release)};
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

std::vector<HeifImage::Handle> HeifImage::thumbnails() const
{
    std::vector<heif_item_id> ids(
        static_cast<std::size_t>(heif_image_handle_get_number_of_thumbnails(_handle.get())));
    heif_image_handle_get_list_of_thumbnail_IDs(_handle.get(), ids.data(), static_cast<int>(ids.size()));
    std::vector<Handle> handles;
    for (const heif_item_id id : ids) {
        heif_image_handle *thumbnail = nullptr;
        check(heif_image_handle_get_thumbnail(_handle.get(), id, &thumbnail));
        handles.emplace_back(thumbnail, &heif_image_handle_release);
    }
    return handles;
}

std::vector<QSize> HeifImage::thumbnailSizes() const
{
    std::vector<QSize> sizes;
    for (const Handle &thumbnail : thumbnails())
        sizes.push_back(sizeOf(thumbnail.get()));
    return sizes;
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

QByteArray HeifImage::block(heif_item_id id) const
{
    const auto size = static_cast<qsizetype>(heif_image_handle_get_metadata_size(_handle.get(), id));
    QByteArray bytes(size, Qt::Uninitialized);
    check(heif_image_handle_get_metadata(_handle.get(), id, bytes.data()));
    return bytes;
}

QByteArray HeifImage::rawColorProfile() const
{
    if (heif_image_handle_get_color_profile_type(_handle.get()) == heif_color_profile_type_not_present)
        return {};
    const auto size = static_cast<qsizetype>(heif_image_handle_get_raw_color_profile_size(_handle.get()));
    QByteArray bytes(size, Qt::Uninitialized);
    const heif_error error = heif_image_handle_get_raw_color_profile(_handle.get(), bytes.data());
    return error.code == heif_error_Ok ? bytes : QByteArray();
}

QImage HeifImage::decoded(int side, qint64 mostPixels) const
{
    const heif_image_handle *chosen = _handle.get();
    const std::vector<Handle> candidates = thumbnails();
    for (const Handle &thumbnail : candidates) {
        const QSize size = sizeOf(thumbnail.get());
        if (std::max(size.width(), size.height()) >= side && pixels(size) < pixels(sizeOf(chosen)))
            chosen = thumbnail.get();
    }
    return pixels(sizeOf(chosen)) > mostPixels ? QImage() : decodedPicture(chosen);
}

} // namespace quorvin
