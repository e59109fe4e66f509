// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace quorvin {

/// A picture as its pixels, large enough to look at.
struct Picture {
    static constexpr int kMostSide = 4096;
    static constexpr int kBytesOfPixel = 4;
    /// How closely it comes to the size that is asked for.
    enum class Detail : quint8 {
        Full,
        Draft, ///< fewer pixels will do, if that is quicker
    };

    int width = 0; ///< pixels, as `height`; at least 1
    int height = 0;
    int fullWidth = 0; ///< of the picture in the file, as it is meant to be seen; 0 when it is not known
    int fullHeight = 0;
    bool isAnimated = false; ///< it is the first of several that follow each other
    QByteArray pixels; ///< row by row from the top without gaps, each as a premultiplied ARGB of this machine

    /// Whether sides and bytes belong together.
    bool isValid() const
    {
        return width > 0 && width <= kMostSide && height > 0 && height <= kMostSide
            && pixels.size() == qsizetype{width} * height * kBytesOfPixel;
    }
};

} // namespace quorvin
