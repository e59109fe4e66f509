// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/JsonWriter.h"

namespace quorvin {

namespace {

constexpr quint64 kMaxDepth = 100;

} // namespace

JsonWriter::JsonWriter(QIODevice &device, bool skipFilePrivate)
    : StructureWriter(device, skipFilePrivate), _stream(*this, {.maxDepth = kMaxDepth, .humanReadable = true})
{
}

void JsonWriter::begin(bool hasOneEntry)
{
    _isList = !hasOneEntry;
    if (_isList)
        openList();
}

JsonWriter::Result JsonWriter::end()
{
    if (_isList)
        closeList();
    if (!_stream.error().isEmpty())
        return failure(_stream.error());
    return {};
}

void JsonWriter::writer(const SBJson5StreamWriter &, QByteArrayView appendBytes)
{
    out().put(appendBytes);
}

} // namespace quorvin
