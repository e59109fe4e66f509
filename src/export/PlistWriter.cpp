// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/PlistWriter.h"

#include "model/Log.h"

namespace quorvin {

PlistWriter::Result PlistWriter::complete()
{
    const auto written = _list.writeBinary([this](QByteArrayView bytes) { out().put(bytes); });
    if (!written)
        qCInfo(lcQuorvin).noquote() << written.error();
    return written;
}

} // namespace quorvin
