// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <stop_token>

namespace quorvin {

class RunControl;
class Settings;

/// The work of asking for a report, by its name, in a guarded process; of one on a library itself, in this
/// one. `path` is "" for a report that is on no file. `settings` must outlive the program's threads.
std::function<Expected<QString>(const RunControl &)> reportWork(const Settings &settings, const QString &path,
                                                                const QString &source);

/// Writes a text of any length as UTF-8; what stands at `path` stays as it is when that fails or is stopped.
/// Any thread.
Expected<void> writeReport(QStringView text, const QString &path, const std::stop_token &stop);

} // namespace quorvin
