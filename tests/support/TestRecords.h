// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportEntry.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace quorvin::test {

/// A file "/x/one.mov", listed as "a/one.mov", with two streams of one kind, one of which exports nothing,
/// and a private fact.
ExportEntry movieEntry();
/// A picture "/x/2.jpg", listed as "2.jpg", with a private fact, and a group in subgroups.
ExportEntry pictureEntry();
/// A file with one parameter of that value.
ExportEntry entryWithValue(const QString &value);

/// The record of a file with these parameters, each "GROUP/KEY=VALUE"; "GROUP#2" is the second stream of
/// several, "GROUP#0" no stream of a kind, and "KEY!" is left out of comparisons. Labels are the keys in
/// upper case.
QuorvinDataPtr recordOf(const QStringList &parameters);

/// The document of a format.
QByteArray exported(const QString &format, const std::vector<ExportEntry> &entries,
                    bool skipFilePrivate = false);

} // namespace quorvin::test
