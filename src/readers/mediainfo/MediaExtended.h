// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ExtTreeItem.h"
#include "model/ParameterGroups.h"
#include "model/RecordOptions.h"

#include <QString>

namespace quorvin {

class oMediaInfo;

/// Appends every parameter that the library offers for display, stream by stream, in the library's order: a
/// group for each kind, with those of its streams that have anything to show. A group without streams stays,
/// empty. On the thread of `info`.
void prepareMediainfoData(const oMediaInfo &info, const RecordOptions &options, ParameterGroups &groups);

/// A tree from a text report: a line "name : value" is a leaf, any other a heading whose leaves follow.
ExtTreeItems completeMediaInfo(const QString &report);

} // namespace quorvin
