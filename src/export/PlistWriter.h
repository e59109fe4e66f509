// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/StructureWriter.h"
#include "platform/PropertyListBuilder.h"
#include "platform/PropertyListJoiner.h"

namespace quorvin {

/// A binary property list. The maps of the files are made one by one and joined.
class PlistWriter final : public StructureWriter {
public:
    PlistWriter(QIODevice &device, bool skipFilePrivate);

private:
    void begin(bool hasOneEntry) override;
    void writeEntry(const ExportEntry &entry, bool isFirst) override;
    Result end() override;
    void openMap() override { _map.openMap(); }
    void closeMap() override { _map.close(); }
    void openList() override { _map.openList(); }
    void closeList() override { _map.close(); }
    void putTerm(const QString &text) override { _map.put(text.toUtf8()); }
    void putValue(QByteArrayView utf8) override { _map.put(utf8.toByteArray()); }

    bool _isList = false;
    PropertyListBuilder _map; ///< of the file at hand
    PropertyListJoiner _list;
    Result _result;
};

} // namespace quorvin
