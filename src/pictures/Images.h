// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Picture.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace quorvin::Utilities {

/// Pictures as one image of their own; all give a null image for what cannot be decoded, is no picture of
/// pixels (a drawing may name other files), or goes beyond the limits below, before anything is decoded. HEIF
/// and AVIF come through libheif. Sizes are in pixels. Any thread.

/// Most pixels of a picture.
inline constexpr qint64 kMostPixels = qint64{32} * 1000 * 1000;
/// Most scans of a progressive JPEG, each of which goes over all of it. Usual ones have about ten.
inline constexpr int kMostScans = 100;

/// Most pixels of a picture that lies in memory as a whole while it is decoded, and of one that does not.
struct PixelLimits {
    qint64 whole = kMostPixels;
    qint64 reduced = kMostPixels;
};

/// The picture with its orientation applied, scaled down so that its longer side is at most `size`; decoded
/// at reduced size where the format can. A smaller picture keeps its size. A draft of a large JPEG has at
/// least half as many pixels a side and comes a fifth sooner.
QImage thumbnailedImageFromURL(const QString &path, int size, const PixelLimits &limits = {},
                               Picture::Detail detail = Picture::Detail::Full);
QImage thumbnailedImageFromData(const QByteArray &data, int size);

/// A copy scaled down to fit the size with its proportions kept; a picture that fits is copied as it is.
QImage imageResize(const QImage &image, QSize newSize);

/// The picture as stored, orientation not applied, in 8 bits a sample, scaled down smoothly to fit the size.
QImage resizedImageFromData(const QByteArray &data, QSize maxSize);

/// "" for a null image.
QByteArray pngDataFromImage(const QImage &image);

} // namespace quorvin::Utilities
