// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>

#include <array>

namespace quorvin {

class oExifToolStayOpenProcess;
struct Fact;

/// What MediaInfo, exiv2 and exiftool say of a fact, in this order; "" where one says nothing.
using EngineWords = std::array<QString, 3>;

enum class EngineVerdict {
    Differ, ///< two that say something say different things
    Agree,
    Alone, ///< one says something
    Silent, ///< none does
};

EngineVerdict verdictOn(const Fact &fact, const EngineWords &words);

/// A table of the facts of a file side by side: those that the engines differ on, those that they agree on,
/// and those that one tells alone. Facts that none tells are left out. Without exiftool, which is null where
/// it is not installed, the table tells that and has the other two.
Expected<QString> enginesReport(const QString &path, oExifToolStayOpenProcess *exifTool);

} // namespace quorvin
