// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Location.h"
#include "model/QuorvinData.h"

#include <QString>

#include <optional>

namespace quorvin {

/// A file that tells where it was recorded.
struct PlacedFile {
    QString path; ///< full
    Location location; ///< as the file tells it, be it possible or not
    QString date; ///< as `recordedDate` has it
};

/// When a file was recorded, as it tells itself, in ISO 8601 and no more exact than told: from "2019" to
/// "2016-09-12T10:05:31.25+02:00". A time has seconds; it has a zone, "Z" for universal time, where one is
/// told. "" when nothing is told, or no date that exists. Any thread, as below.
QString recordedDate(const QuorvinData &record);

/// Absent for a record without a location.
std::optional<PlacedFile> placedFile(const QString &path, const QuorvinData &record);

} // namespace quorvin
