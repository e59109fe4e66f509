// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/PlistWriter.h"

#include "model/Log.h"

namespace quorvin {

PlistWriter::PlistWriter(QIODevice &device, bool skipFilePrivate)
    : StructureWriter(device, skipFilePrivate), _list([this](QByteArrayView bytes) { out().put(bytes); })
{
}

void PlistWriter::begin(bool hasOneEntry)
{
    _isList = !hasOneEntry;
    if (_isList)
        _list.begin();
}

void PlistWriter::writeEntry(const ExportEntry &entry, bool isFirst)
{
    StructureWriter::writeEntry(entry, isFirst);
    const auto map = _map.takeBinary();
    if (!map)
        _result = tl::unexpected(map.error());
    else if (_isList)
        _list.add(*map);
    else
        out().put(*map);
}

PlistWriter::Result PlistWriter::end()
{
    if (_result && _isList)
        _result = _list.finish();
    if (!_result)
        qCInfo(lcQuorvin).noquote() << _result.error().description;
    return _result;
}

} // namespace quorvin
