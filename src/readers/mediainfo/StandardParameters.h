// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Vocabulary.h"
#include "readers/mediainfo/StreamKind.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <vector>

namespace quorvin {

class oMediaInfo;

/// How a parameter enters a record.
enum class ParameterRule {
    Plain,
    StreamSize, ///< by the record's size rule
    Duration, ///< in the library's first form
};

/// What the library says of a parameter apart from any file.
struct ParameterFace {
    TermPtr term; ///< its name, and its display name or, where that is missing, the name again
    bool shown = false;
    ParameterRule rule = ParameterRule::Plain;
};

/// The parameters that the library has for every stream of a kind. Name, display name and show flag of such a
/// parameter do not depend on the file, so they are read once. A stream may have further parameters behind
/// these, its own. Any thread, after the set-up of the library.
namespace StandardParameters {

/// The library's list as it comes: a heading for each kind, then "Name;Comment" lines.
const QString &text();

/// The same, section by section; a heading is a kind's name.
struct Section {
    QString heading;
    QStringList names;
};
const std::vector<Section> &list();

std::optional<qint64> indexOf(StreamKind kind, const QString &name);

/// By index. `info` is any open file with a stream of that kind: the library answers only there.
std::span<const ParameterFace> faces(const oMediaInfo &info, StreamKind kind);

/// The face of a parameter of a stream, asked of the library.
ParameterFace faceOf(const oMediaInfo &info, StreamKind kind, quint64 number, qint64 parameter);

/// "StreamSize/String" and "Source_StreamSize/String".
bool isStreamSize(const QString &name);

} // namespace StandardParameters

} // namespace quorvin
