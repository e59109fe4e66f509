// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>

namespace quorvin {

/// An encoded picture as a record keeps it: as it came, or, above `kLargestCover` bytes, scaled to
/// `kCoverSide` pixels on its longer side and encoded again. What cannot be decoded stays as it came. Any
/// thread.
QByteArray storedCover(const QByteArray &encoded);

/// A decoded picture as a record keeps it: JPEG, or PNG for one with transparency; "" for a null one. Any
/// thread.
QByteArray encodedPicture(const QImage &picture);

inline constexpr qsizetype kLargestCover = 65'536;
inline constexpr int kCoverSide = 512;

} // namespace quorvin
