// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/StructureWriter.h"
#include "platform/PropertyListBuilder.h"

namespace quorvin {

/// A binary property list. Its form does not allow to write it piece by piece: it is kept until the end.
class PlistWriter final : public StructureWriter {
public:
    using StructureWriter::StructureWriter;

private:
    void openMap() override { _list.openMap(); }
    void closeMap() override { _list.close(); }
    void openList() override { _list.openList(); }
    void closeList() override { _list.close(); }
    void putTerm(const QString &text) override { _list.put(text.toUtf8()); }
    void putValue(QByteArrayView utf8) override { _list.put(utf8.toByteArray()); }
    Result complete() override;

    PropertyListBuilder _list;
};

} // namespace quorvin
