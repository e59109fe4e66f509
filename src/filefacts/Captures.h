// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quorvin::Utilities {

/// The first match of a case-insensitive regular expression: the whole match, then each capture group, "" for
/// a group that took no part. An empty list without a match; absent for a bad pattern. Any thread.
std::optional<QStringList> captureFirstComponentsMatchedByRegex(const QString &pattern,
                                                                const QString &string);

} // namespace quorvin::Utilities
