// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "statistics/CountTable.h"

#include <QStringList>

#include <vector>

namespace quorvin::test {

/// A file that was read, with parameters as `recordOf` takes them.
FilelistItemPtr readFile(const QStringList &parameters, qint64 duration = 0, qint64 bytes = 0);
/// A file each with that value of "Video/rate", whose label is "Video/RATE".
std::vector<FilelistItemPtr> filesOfValues(const QStringList &values);

/// The count as an index of the files gives it.
ParameterCountPtr counted(const QString &parameter, const std::vector<FilelistItemPtr> &files);

/// A line a row: files, streams, text.
QStringList linesOf(const CountTable &table);

} // namespace quorvin::test
