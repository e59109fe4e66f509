// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace quorvin::Utilities {

/// Pictures as one image of their own; all give a null image for what cannot be decoded, or is larger than
/// `kMaxPictureSide` on a side. Sizes are in pixels. Any thread.

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

inline constexpr int kMaxPictureSide = 60'000;

} // namespace quorvin::Utilities
