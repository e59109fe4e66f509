// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "SBJson5/SBJson5StreamWriter.h"
#include "SBJson5/SBJson5StreamWriterDelegate.h"
#include "export/StructureWriter.h"

namespace quorvin {

/// JSON in human-readable form, without a byte-order mark and without a line feed at the end.
class JsonWriter final : public StructureWriter, private SBJson5StreamWriterDelegate {
public:
    JsonWriter(QIODevice &device, bool skipFilePrivate);

private:
    void begin(bool hasOneEntry) override;
    Result end() override;
    void openMap() override { _stream.writeObjectOpen(); }
    void closeMap() override { _stream.writeObjectClose(); }
    void openList() override { _stream.writeArrayOpen(); }
    void closeList() override { _stream.writeArrayClose(); }
    void putTerm(const QString &text) override { _stream.writeString(text); }
    void putValue(QByteArrayView utf8) override { _stream.writeUtf8String(utf8); }
    void writer(const SBJson5StreamWriter &writer, QByteArrayView appendBytes) override;

    SBJson5StreamWriter _stream;
    bool _isList = false;
};

} // namespace quorvin
