// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "comparison/ComparisonRows.h"
#include "model/Error.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <span>

class QIODevice;

namespace quorvin {

/// Gives a comparison as text, whole.
class ComparisonExportDelegate {
public:
    virtual ~ComparisonExportDelegate() = default;

    virtual QString csvExportString() const = 0;
    virtual QString htmlExportString() const = 0;
};

/// The rows of a comparison as documents and for the clipboard. A description has the path of each file, in
/// the order of the values. Any thread.
namespace ComparisonExport {

/// The formats of documents, by their keys, which are also their extensions: "csv", "html", "json".
QStringList formats();

/// One document, as a file has it: UTF-8, CSV with its byte-order mark. `format` is a key of `formats`. The
/// error has the device's reason.
Expected<void> write(const QString &format, const ComparisonContent &content, const QStringList &description,
                     QIODevice &device);

/// Gives a row after the other, each until the next call; null behind the last one.
using Rows = std::function<const ComparisonRow *()>;
/// The same of rows that need not be there all at once.
Expected<void> write(const QString &format, const Rows &rows, const QStringList &description,
                     QIODevice &device);

/// A document with the names of the files above their columns.
QString htmlExportStringForContent(const ComparisonContent &content, const QStringList &description);
/// A row for each row, headings filled up with empty fields; no names of files, no byte-order mark.
QString csvExportStringForContent(const ComparisonContent &content, const QStringList &description);

QString htmlLineForColumns(const QStringList &columns);
QString htmlLineForItems(const QStringList &items, qsizetype totalColumns);
QString pboardHtmlLineForItems(const QStringList &items);

/// Rows for the clipboard, as an HTML table, and as lines of fields between tabs. A tab or line break within
/// a value becomes a blank in the latter.
QString pboardHtml(std::span<const ComparisonRow *const> rows);
QString pboardText(std::span<const ComparisonRow *const> rows);

} // namespace ComparisonExport

} // namespace quorvin
