// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/OutputBuffer.h"

#include <QFileDevice>

namespace quorvin {

const OutputBuffer::Result &OutputBuffer::flush()
{
    drain();
    auto *file = qobject_cast<QFileDevice *>(&_device);
    if (_result && file && (!file->flush() || file->error() != QFileDevice::NoError))
        _result = failure(file->errorString());
    return _result;
}

void OutputBuffer::drain()
{
    handOn({_piece.get(), std::exchange(_used, 0)});
}

void OutputBuffer::handOn(QByteArrayView bytes)
{
    // Where room ends within the bytes, only the next attempt tells why.
    while (_result && !bytes.isEmpty()) {
        const qint64 written = _device.write(bytes.data(), bytes.size());
        if (written <= 0)
            _result = failure(_device.errorString());
        else
            bytes = bytes.sliced(written);
    }
}

} // namespace quorvin
