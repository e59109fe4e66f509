// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ExtTreeItem.h"

#include <QModelIndex>
#include <QString>

#include <optional>
#include <vector>

namespace quorvin {

class ExtTreeModel;

/// A parameter that the user keeps an eye on, by its names, so that it is found in the tree of any file.
struct WatchedParameter {
    QString group; ///< key of its group
    quint64 stream = 0; ///< number of the group's stream; 0 where groups have none
    QString key;
    QString label; ///< as it was called where it was chosen

    /// "Video: Width", with the number of the stream from the second on.
    QString title() const;
    bool operator==(const WatchedParameter &other) const
    {
        return group == other.group && stream == other.stream && key == other.key;
    }
};

using WatchedParameters = std::vector<WatchedParameter>;

/// Absent when the row is no parameter.
std::optional<WatchedParameter> watchedParameterAt(const ExtTreeModel &tree, const QModelIndex &row);

/// The parameter in that tree; null when it is not there. Where a file has one stream of the kind, or
/// several, and the file it was chosen in did not, the first one stands for it.
const ExtTreeItem *findWatched(const ExtTreeItems &tree, const WatchedParameter &parameter);

/// As settings keep them.
QString textOfWatched(const WatchedParameters &parameters);
/// What is no such text, or no parameter in it, is left out.
WatchedParameters watchedFromText(const QString &text);

} // namespace quorvin
