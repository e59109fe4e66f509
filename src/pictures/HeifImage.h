// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QImage>
#include <QSize>
#include <QString>

#include <libheif/heif.h>

#include <memory>
#include <vector>

namespace quorvin {

/// The primary image of an open HEIF or AVIF file. Sizes are in pixels, with the file's own rotations
/// applied. What libheif refuses gives its reason, which is logged at
/// debug level. One thread at a time.
class HeifImage {
public:
    /// Loads libheif, which the first file would do otherwise. Any thread.
    static void setupLibrary();
    /// "" when it can't be loaded. Any thread.
    static QString libraryVersion();
    static Expected<HeifImage> open(const QString &path);

    int numberOfTopLevelImages() const;
    int width() const;
    int height() const;
    /// Bits of a sample; below 1 when libheif can't tell.
    int depth() const;
    bool hasAlpha() const;
    Expected<std::vector<QSize>> thumbnailSizes() const;
    std::vector<heif_item_id> metadataBlocks() const;
    /// Such as Exif; a view that lasts as long as this object.
    QByteArrayView blockType(heif_item_id id) const;
    Expected<QByteArray> block(heif_item_id id) const;
    /// ICC bytes; empty when there are none.
    QByteArray rawColorProfile() const;
    /// The smallest picture in the file whose longer side has `side` pixels, decoded: a thumbnail or the
    /// image itself. One of more than `mostPixels` fails before anything is decoded.
    Expected<QImage> decoded(int side, qint64 mostPixels) const;

private:
    struct Release {
        void operator()(heif_image_handle *handle) const;
        void operator()(heif_context *context) const;
    };
    using Handle = std::unique_ptr<heif_image_handle, Release>;
    using Context = std::unique_ptr<heif_context, Release>;

    HeifImage(Context context, Handle handle) : _context(std::move(context)), _handle(std::move(handle)) { }
    Expected<std::vector<Handle>> thumbnails() const;

    Context _context;
    Handle _handle;
};

} // namespace quorvin
