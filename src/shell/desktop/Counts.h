// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

/// A count for people to read: "1,204", with the separator of the user's locale. Any thread.
QString groupedCount(qint64 count);

/// "1 file", "1,204 files". Any thread.
QString countOfFiles(qint64 count);

} // namespace quorvin
