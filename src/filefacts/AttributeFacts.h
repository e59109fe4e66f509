// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace quorvin {

/// What the extended attributes of a file tell of it. A fact comes from the attribute of the record's
/// vocabulary, or, where that is not set, from the attribute that the desktop uses for it.
struct AttributeFacts {
    std::optional<QString> comment;
    std::optional<QVariant> whereFroms; ///< string or list
    std::optional<QVariant> authors; ///< string or list
    std::optional<QVariant> downloadedDate; ///< date or list of dates
    QStringList tags;
};

/// Attributes that are malformed are logged and left out. Any thread.
AttributeFacts readAttributeFacts(const QString &path);

/// A string as it is, a list joined with ",\n"; absent for an empty list and for any other type.
std::optional<QString> joinedText(const std::optional<QVariant> &value);
/// Dates as localized text, joined with ",\n"; absent when there is none.
std::optional<QString> joinedDates(const std::optional<QVariant> &value);

} // namespace quorvin
