// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <optional>

namespace quorvin {

class ExtTreeItem;

/// What of a file can be changed through a row of its Extended tree.

/// The extended attribute that the row of that key in the Extended tree shows; absent when it shows none.
std::optional<QString> attributeOfKey(const QString &key);

/// The row shows a date that the file's own can be set to.
bool showsTouchDate(const ExtTreeItem &row);

} // namespace quorvin
