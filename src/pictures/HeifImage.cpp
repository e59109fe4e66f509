// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/HeifImage.h"

#include "model/Log.h"
#include "pictures/HeifLibrary.h"
#include "platform/NativePath.h"

#include <algorithm>

namespace quorvin {

namespace {

const HeifLibrary &heif()
{
    return HeifLibrary::instance();
}

Expected<void> checked(const heif_error &error)
{
    if (error.code == heif_error_Ok)
        return {};
    qCDebug(lcLibraries) << "libheif:" << error.message;
    return failure(QString::fromUtf8(error.message));
}

QSize sizeOf(const heif_image_handle *handle)
{
    return {heif().width(handle), heif().height(handle)};
}

qint64 pixels(QSize size)
{
    return qint64{size.width()} * size.height();
}

Expected<QImage> decodedPicture(const heif_image_handle *handle)
{
    const bool alpha = heif().hasAlpha(handle) != 0;
    heif_image *picture = nullptr;
    const auto decoded
        = checked(heif().decode(handle, &picture, heif_colorspace_RGB,
                                alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, nullptr));
    if (!decoded)
        return tl::unexpected(decoded.error());
    const auto release = [](const heif_image *image) { heif().releaseImage(image); };
    const std::unique_ptr<heif_image, decltype(release)> owner(picture, release);
    int stride = 0;
    const uint8_t *bytes = heif().plane(picture, heif_channel_interleaved, &stride);
    if (!bytes)
        return failure(QStringLiteral("a picture without pixels"));
    const QImage view(bytes, heif().imageWidth(picture, heif_channel_interleaved),
                      heif().imageHeight(picture, heif_channel_interleaved), stride,
                      alpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    return view.copy();
}

} // namespace

void HeifImage::Release::operator()(heif_image_handle *handle) const
{
    heif().releaseHandle(handle);
}

void HeifImage::Release::operator()(heif_context *context) const
{
    heif().freeContext(context);
}

void HeifImage::setupLibrary()
{
    heif();
}

QString HeifImage::libraryVersion()
{
    return QString::fromUtf8(heif().version());
}

Expected<HeifImage> HeifImage::open(const QString &path)
{
    if (!heif().isLoaded())
        return failure(QStringLiteral("libheif is not there"));
    Context context(heif().allocContext());
    heif_image_handle *primary = nullptr;
    return checked(heif().readFromFile(context.get(), encodePath(path).constData(), nullptr))
        .and_then([&] { return checked(heif().primaryImage(context.get(), &primary)); })
        .map([&] { return HeifImage(std::move(context), Handle(primary)); });
}

int HeifImage::numberOfTopLevelImages() const
{
    return heif().numberOfTopLevelImages(_context.get());
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
    return heif().lumaBits(_handle.get());
}

bool HeifImage::hasAlpha() const
{
    return heif().hasAlpha(_handle.get()) != 0;
}

Expected<std::vector<HeifImage::Handle>> HeifImage::thumbnails() const
{
    std::vector<heif_item_id> ids(static_cast<std::size_t>(heif().numberOfThumbnails(_handle.get())));
    heif().thumbnailIds(_handle.get(), ids.data(), static_cast<int>(ids.size()));
    std::vector<Handle> handles;
    for (const heif_item_id id : ids) {
        heif_image_handle *thumbnail = nullptr;
        if (const auto got = checked(heif().thumbnail(_handle.get(), id, &thumbnail)); !got)
            return tl::unexpected(got.error());
        handles.emplace_back(thumbnail);
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
    std::vector<heif_item_id> ids(static_cast<std::size_t>(heif().numberOfBlocks(_handle.get(), nullptr)));
    heif().blockIds(_handle.get(), nullptr, ids.data(), static_cast<int>(ids.size()));
    return ids;
}

QByteArrayView HeifImage::blockType(heif_item_id id) const
{
    return heif().blockType(_handle.get(), id);
}

Expected<QByteArray> HeifImage::block(heif_item_id id) const
{
    const auto size = static_cast<qsizetype>(heif().blockSize(_handle.get(), id));
    QByteArray bytes(size, Qt::Uninitialized);
    return checked(heif().block(_handle.get(), id, bytes.data())).map([&] { return bytes; });
}

QByteArray HeifImage::rawColorProfile() const
{
    if (heif().profileType(_handle.get()) == heif_color_profile_type_not_present)
        return {};
    const auto size = static_cast<qsizetype>(heif().profileSize(_handle.get()));
    QByteArray bytes(size, Qt::Uninitialized);
    return checked(heif().profile(_handle.get(), bytes.data())) ? bytes : QByteArray();
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
