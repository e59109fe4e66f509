// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVariant>

#include <optional>

namespace quorvin {

/// One parameter of a flat list. All flags start false.
struct FlatItem {
    bool isPrivateInfo = false;
    bool skipInExtended = false;
    bool skipInExport = false;
    bool skipInComparison = false;
    QString key;
    std::optional<QString> label;
    QString value;
    QVariant rawValue; ///< the value as it came

    /// The value is `rawValue` as text: a string as it is, anything else in its plain text form.
    static FlatItem itemWithKey(const QString &key, std::optional<QString> label, const QVariant &rawValue);
    /// Value and raw value are both `stringValue`.
    static FlatItem itemWithKey(const QString &key, const QString &stringValue, std::optional<QString> label,
                                bool isPrivateInfo, bool skipInExtended, bool skipInExport,
                                bool skipInComparison);
};

} // namespace quorvin
