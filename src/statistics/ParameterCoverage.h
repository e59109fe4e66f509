// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/RecordIndex.h"

#include <QString>
#include <QtGlobal>

#include <span>
#include <stop_token>
#include <vector>

namespace quorvin {

/// A parameter of a list, and how much there is of it.
struct ParameterCoverage {
    QString name; ///< SECTION/NAME, or `kFailures`
    qint64 files = 0; ///< that have it
    qint64 values = 0; ///< distinct

    bool operator==(const ParameterCoverage &) const = default;
};

/// The parameters that the files have, by their names in the order of a file browser. What has no place in
/// the columns of the index is left out. Nothing once a stop is asked for. Any thread that has the index.
std::vector<ParameterCoverage> coverageOf(const RecordIndex &index, std::span<const FilelistItemPtr> files,
                                          const std::stop_token &stop = {});

/// The same of `kFailures`: the files that could not be read, and the different reasons for that. Any thread
/// that has the index.
ParameterCoverage failureCoverageOf(const RecordIndex &index, std::span<const FilelistItemPtr> files);

/// The known names that are most like this one, the nearest first; at most three, none when nothing is like
/// it. Case does not count.
QStringList namesLike(const QString &name, const QStringList &known);

} // namespace quorvin
