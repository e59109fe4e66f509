// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "projects/Project.h"

#include <QByteArrayView>

namespace quorvin {

/// A moment as projects write it: seconds since 1970 with nine decimals, which count upwards before 1970 too.

QByteArray textOfFileTime(const FileTime &time);
/// Absent for any other text.
std::optional<FileTime> fileTimeFromText(QByteArrayView text);

} // namespace quorvin
