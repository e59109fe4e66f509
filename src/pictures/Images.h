// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace quorvin::Utilities {

/// Pictures as one image of their own; all give a null image for what cannot be decoded, or claims more
/// pixels than the limits below, before anything is decoded. HEIF and AVIF come through libheif. Sizes are in
/// pixels. Any thread.

/// The picture with its orientation applied, scaled down so that its longer side is at most `size`; decoded
/// at reduced size where the format can. A smaller picture keeps its size.
QImage thumbnailedImageFromURL(const QString &path, int size);
QImage thumbnailedImageFromData(const QByteArray &data, int size);

/// A copy scaled down to fit the size with its proportions kept; a picture that fits is copied as it is.
QImage imageResize(const QImage &image, QSize newSize);

/// The picture as stored, orientation not applied, in 8 bits a sample, scaled down smoothly to fit the size.
QImage resizedImageFromData(const QByteArray &data, QSize maxSize);

/// "" for a null image.
QByteArray pngDataFromImage(const QImage &image);

/// Most pixels of a picture that is scaled down while it is decoded, line by line.
inline constexpr qint64 kMaxScaledPixels = qint64{128} * 1024 * 1024;
/// Most pixels of a picture that has to be decoded as a whole.
inline constexpr qint64 kMaxWholePixels = qint64{64} * 1024 * 1024;

} // namespace quorvin::Utilities
