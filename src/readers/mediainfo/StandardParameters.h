// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "readers/mediainfo/StreamKind.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quorvin {

/// The parameters that the library has for every stream of a kind. A stream may have further parameters
/// behind these, its own. Any thread, after the set-up of the library.
namespace StandardParameters {

/// The library's list as it comes: a heading for each kind, then "Name;Comment" lines.
const QString &text();

/// The same, section by section; a heading is a kind's name.
struct Section {
    QString heading;
    QStringList names;
};
const std::vector<Section> &list();

/// How many the library has for streams of that kind.
qint64 count(StreamKind kind);
std::optional<qint64> indexOf(StreamKind kind, const QString &name);

/// "StreamSize/String" and "Source_StreamSize/String".
bool isStreamSize(const QString &name);

} // namespace StandardParameters

} // namespace quorvin
