// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "model/Picture.h"

#include <QImage>
#include <QString>

namespace quorvin {

/// Any thread, all of it.

/// The picture of a file with its orientation applied, decoded no larger than `side` pixels on its longer
/// side, and `Picture::kMostSide` whatever is asked for. Fails for what is no picture of pixels, cannot be
/// decoded, or has more pixels than can be held. A draft may be smaller, as that of
/// `thumbnailedImageFromURL`.
Expected<Picture> pictureOfFile(const QString &path, int side,
                                Picture::Detail detail = Picture::Detail::Full);

/// A decoded image as a picture that has that size; `image` must not be null, nor larger than
/// `Picture::kMostSide`.
Picture pictureOf(const QImage &image);

/// The way back; null for one that is not valid.
QImage imageOf(const Picture &picture);

} // namespace quorvin
