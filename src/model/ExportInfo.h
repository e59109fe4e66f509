// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/RecordContents.h"

#include <QByteArrayView>
#include <QString>

#include <vector>

namespace quorvin {

/// A parameter as exports show it: the key ("option") and the label ("name") of its term, and its value.
/// Lasts as long as the record.
struct ExportRow {
    const Term *term = nullptr;
    QByteArrayView value; ///< valid UTF-8
};

using ExportStream = std::vector<ExportRow>;

/// A section of an export: a kind of streams, or a group of parameters that has one.
struct ExportSection {
    QString name;
    std::vector<ExportStream> streams; ///< never empty; a stream may be
};

/// What is marked for export of a record, in the record's order.
struct ExportInfo {
    std::vector<ExportSection> sections;
    QString filename; ///< full path
};

/// A key that a stream has twice gives two rows, both with the last value. Groups without streams, and
/// those of which nothing is marked for export, are left out. `withoutFilePrivate` leaves private facts out,
/// as far as their reader let it.
ExportInfo computeExportInfo(const RecordContents &record, bool withoutFilePrivate);

} // namespace quorvin
