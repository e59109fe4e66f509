// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

namespace quorvin {

/// A small picture as its pixels. Nobody who shows it needs a decoder.
struct Cover {
    static constexpr int kMostSide = 512;

    int width = 0; ///< pixels, as `height`; 0 when there is no cover
    int height = 0;
    bool hasAlpha = false;
    QByteArray pixels; ///< row by row from the top without gaps: red, green, blue and, with `hasAlpha`,
                       ///< alpha, a byte each, not premultiplied

    bool isEmpty() const { return pixels.isEmpty(); }
    /// Whether sides and bytes belong together; so is an empty one.
    bool isValid() const
    {
        return width >= 0 && width <= kMostSide && height >= 0 && height <= kMostSide
            && pixels.size() == qsizetype{width} * height * (hasAlpha ? 4 : 3);
    }
    bool operator==(const Cover &) const = default;
};

} // namespace quorvin
