// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QStringList>

namespace quorvin {

/// What beside the metadata of an image gives away where it came from, or what was in it. Any thread.
struct ImageTraces {
    QStringList attributes = {}; ///< extended ones that tell its origin, as `Utilities` names them
    QStringList thumbnails = {}; ///< pictures of it that the desktop keeps, as paths

    bool isEmpty() const { return attributes.isEmpty() && thumbnails.isEmpty(); }
};

/// Those of the file, and of what it leads to when it is a link.
ImageTraces tracesOf(const QString &path);
/// Removes them all; the first error.
Expected<void> clearTraces(const QString &path);

} // namespace quorvin
