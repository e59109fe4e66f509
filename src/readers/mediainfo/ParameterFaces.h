// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Vocabulary.h"
#include "readers/mediainfo/oMediaInfo.h"

#include <span>

namespace quorvin {

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

/// Name, display name and show flag of a standard parameter do not depend on the file, so they are read once.
/// `info` is any open file with a stream of that kind: the library answers only there. By index. Any thread.
std::span<const ParameterFace> standardFaces(const oMediaInfo &info, StreamKind kind);

/// The face of any parameter of a stream, asked of the library.
ParameterFace faceOf(const oMediaInfo &info, StreamKind kind, quint64 number, qint64 parameter);

} // namespace quorvin
