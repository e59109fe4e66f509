// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>
#include <QStringList>

namespace quorvin {

/// The reports of the libraries, by name.
QStringList rawSources();

/// False for a report on the library itself.
bool rawSourceTakesFiles(const QString &source);

/// The report on a file, or the reason why there is none. `path` is "" for a source that takes no files.
Expected<QString> rawReport(const QString &source, const QString &path);

} // namespace quorvin
