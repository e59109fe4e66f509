// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportWriter.h"

namespace quorvin {

/// A format that shows the Extended tree: headings of groups and the parameters under them, nested groups
/// like any other. Works on the record's store, without making the tree.
class TreeWriter : public ExportWriter {
public:
    using ExportWriter::ExportWriter;

protected:
    /// Passes the tree on, without private facts where they are to be left out; no heading is.
    void writeTree(const ParameterGroups &groups);

    virtual void putHeading(const QString &name) = 0;
    /// The value is UTF-8.
    virtual void putParameter(const Term &term, QByteArrayView value) = 0;
};

} // namespace quorvin
