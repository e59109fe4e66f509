// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArrayView>
#include <QVariant>

namespace quorvin {

/// A binary or XML property list as a value: string, list, map, number, boolean, bytes or `QDateTime`. A date
/// beyond the 68 years before and after 2001 that libplist tells of is a null value. Fails
/// when the bytes are no property list, nest deeper than `kMaxPropertyListDepth`,
/// or expand beyond the budget of `expandsWithinBudget`. Any thread.
Expected<QVariant> parsePropertyList(QByteArrayView bytes);

inline constexpr int kMaxPropertyListDepth = 32;

} // namespace quorvin
