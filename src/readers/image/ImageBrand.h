// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArrayView>

namespace quorvin {

/// Whether the image reader may look at a file that begins with these bytes. An ISO base media file ("ftyp"
/// at byte 4, at least 12 bytes) may only with a major brand of still pictures, so that a movie never gets
/// there; any other file may.
bool brandMayBeImage(QByteArrayView head);

/// Whether these bytes begin a HEIF file of HEVC pictures: a brand of still pictures, and AVIF not among the
/// brands.
bool brandMayBeHeic(QByteArrayView head);

/// As many bytes as the test looks at.
inline constexpr qsizetype kBrandHeadLength = 50;

} // namespace quorvin
