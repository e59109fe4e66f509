// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QIODevice;

namespace quorvin {

/// What a JPEG costs to decode beside its pixels.
struct JpegScans {
    bool isProgressive = false;
    int count = 0; ///< how often the data goes over the picture; counted no further than `kCountedScans`
};

/// Reads the markers of a JPEG from the start of an open device, and leaves the device where it was. All zero
/// for what is no JPEG. Any thread.
JpegScans scansOf(QIODevice &device);

inline constexpr int kCountedScans = 1'000;

} // namespace quorvin
