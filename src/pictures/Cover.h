// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Cover.h"
#include "model/QuorvinData.h"

#include <QByteArray>
#include <QImage>

namespace quorvin {

/// Any thread, all of it.

/// A picture as a reader hands it on: scaled down to `side` pixels at most on its longer side, and to
/// `Cover::kMostSide` whatever is asked for. Empty for a null picture.
Cover coverOf(const QImage &picture, int side = Cover::kMostSide);

/// The same of the bytes of a picture, decoded within the limits of `thumbnailedImageFromData`; empty for
/// what cannot be decoded.
Cover coverOfData(const QByteArray &encoded, int side = Cover::kMostSide);

/// The way back; null for an empty cover, and for one that is not valid.
QImage imageOfCover(const Cover &cover);

/// A cover as JPEG, or PNG for one with transparency, in `kMostPackedBytes` at most; made coarser, then
/// smaller, until it fits. "" for an empty one, and for one that is not valid.
QByteArray packedCover(const Cover &cover);

/// The record with its cover packed, in place of its pixels: as much as a list of many files can keep. The
/// same record when it has none.
QuorvinDataPtr withPackedCover(QuorvinDataPtr record);

inline constexpr qsizetype kMostPackedBytes = 65'536;

} // namespace quorvin
