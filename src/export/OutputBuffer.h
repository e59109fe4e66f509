// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArrayView>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <memory>

class QIODevice;

namespace quorvin {

/// Hands bytes to a device in large pieces, and remembers the first failure; after it, what comes is dropped.
/// The device must outlive it. One thread.
class OutputBuffer {
public:
    /// The error has the device's reason.
    using Result = Expected<void>;

    explicit OutputBuffer(QIODevice &device) : _device(device) { }

    void put(QByteArrayView bytes)
    {
        if (bytes.size() > kPiece - _used)
            drain();
        if (bytes.size() > kPiece)
            return handOn(bytes);
        std::ranges::copy(bytes, &_piece[static_cast<std::size_t>(_used)]);
        _used += bytes.size();
    }
    void putText(const QString &text) { put(text.toUtf8()); }

    /// Hands on all that waits, and makes a file hand it to the system.
    const Result &flush();
    const Result &result() const { return _result; }

    static constexpr qsizetype kPiece = 65'536;

private:
    void drain();
    void handOn(QByteArrayView bytes);

    QIODevice &_device;
    std::unique_ptr<char[]> _piece{new char[kPiece]};
    qsizetype _used = 0; ///< bytes of the piece
    Result _result;
};

} // namespace quorvin
