// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QSize>

#include <exiv2/exiv2.hpp>
#include <libheif/heif.h>

#include <memory>

namespace quorvin::test {

/// Pictures as the libraries write them.

/// A picture in a format of Qt; with a colour profile if there is one.
QByteArray picture(const char *format, QSize size = {16, 12}, bool withProfile = false);

/// The same file with these metadata written into it by exiv2.
QByteArray withMetadata(const QByteArray &file, const Exiv2::ExifData &exif, const Exiv2::XmpData &xmp = {});

/// An image in memory with these metadata, ready to be looked at.
std::unique_ptr<Exiv2::Image> imageWith(const Exiv2::ExifData &exif, const Exiv2::IptcData &iptc = {},
                                        const Exiv2::XmpData &xmp = {});

/// A HEIC or AVIF file with these blocks of its own, where they are not empty, written by libheif; with a
/// thumbnail of that longer side, where it is not 0.
QByteArray heif(heif_compression_format format, QSize size = {64, 48}, const QByteArray &exif = {},
                const QByteArray &xmp = {}, int thumbnailSide = 0);

/// Bare Exif data of little-endian TIFF form.
QByteArray tiffBytes(const Exiv2::ExifData &exif);

} // namespace quorvin::test
