// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArrayView>

namespace quorvin {

/// Whether a binary property list stays small when every reference in it becomes a copy, as libplist makes
/// one: lists that name each other ten times over ten levels take gigabytes, in a few hundred bytes. True for
/// bytes that are no binary property list, and for what is wrong in one; libplist sees to those. Any thread.
bool expandsWithinBudget(QByteArrayView bytes);

/// About as much as the copies may take, in bytes.
inline constexpr qint64 kMostExpandedBytes = qint64{16} * 1024 * 1024;

} // namespace quorvin
