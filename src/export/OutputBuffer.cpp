// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/OutputBuffer.h"

#include <QFileDevice>

namespace quorvin {

OutputBuffer::OutputBuffer(QIODevice &device) : _device(device)
{
    _bytes.reserve(kPiece);
}

const OutputBuffer::Result &OutputBuffer::flush()
{
    drain();
    auto *file = qobject_cast<QFileDevice *>(&_device);
    if (_result && file && (!file->flush() || file->error() != QFileDevice::NoError))
        _result = tl::unexpected(file->errorString());
    return _result;
}

void OutputBuffer::drain()
{
    handOn(_bytes);
    _bytes.resize(0);
}

void OutputBuffer::handOn(QByteArrayView bytes)
{
    if (_result && _device.write(bytes.data(), bytes.size()) != bytes.size())
        _result = tl::unexpected(_device.errorString());
}

} // namespace quorvin
