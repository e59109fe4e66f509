// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "statistics/CountTable.h"

#include <QString>
#include <QStringList>

class QIODevice;

namespace quorvin {

/// A count as texts and documents, in UTF-8. Any thread.

/// What it tells, in one sentence.
QString headlineOf(const CountTable &table);
/// "Least", "Greatest" and so on with their texts; none without figures.
QStringList figureLinesOf(const Figures &figures);

/// The formats of documents, by their keys, which are also their extensions: "txt", "csv", "json".
QStringList countFormats();
/// One document of the rows of the table; of "json", of the values whatever the rows. The error has the
/// device's reason.
Expected<void> writeCount(const QString &format, const CountTable &table, QIODevice &device);

/// Rows for the clipboard: the fields of "csv" in lines, between tabs.
QString tabbedText(std::span<const CountRow> rows);

} // namespace quorvin
