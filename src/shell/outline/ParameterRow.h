// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QModelIndex>
#include <QString>

namespace quorvin {

class ExtTreeModel;

/// The row of a parameter in the tree of a file: `section` is the key of its group, `stream` the number of
/// its stream, 0 or 1 where it is the only one, `key` its own. The group where the tree does not show it;
/// invalid without the group.
QModelIndex rowOfParameter(const ExtTreeModel &tree, const QString &section, quint32 stream,
                           const QString &key);

} // namespace quorvin
