// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include <tl/expected.hpp>

class QIODevice;

namespace quorvin {

/// Hands bytes to a device in large pieces, and remembers the first failure; after it, what comes is dropped.
/// The device must outlive it. One thread.
class OutputBuffer {
public:
    /// The error is the device's reason, for a person to read.
    using Result = tl::expected<void, QString>;

    explicit OutputBuffer(QIODevice &device);

    void put(QByteArrayView bytes)
    {
        if (_bytes.size() + bytes.size() > kPiece)
            drain();
        if (bytes.size() <= kPiece)
            _bytes.append(bytes);
        else
            handOn(bytes);
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
    QByteArray _bytes;
    Result _result;
};

} // namespace quorvin
