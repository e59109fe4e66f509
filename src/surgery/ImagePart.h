// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include <algorithm>

namespace quorvin {

/// A piece of an image file: of the picture, or what a program has put there for itself; or else a block of
/// metadata of a kind that can be removed.
struct ImagePart {
    enum Kind { Picture, Exif, Iptc, Xmp };

    QByteArray name; ///< what a person would look for: "scan data", "chunk pHYs"
    QByteArrayView bytes; ///< in the file
    Kind kind = Picture;

    friend bool operator==(const ImagePart &a, const ImagePart &b)
    {
        return a.name == b.name && std::ranges::equal(a.bytes, b.bytes);
    }
};

} // namespace quorvin
