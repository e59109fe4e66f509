// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// Playing times are whole milliseconds. Any thread.
namespace quorvin::Utilities {

/// Whole seconds as hh:mm:ss, rounded up; "" below one millisecond. Hours may take more than two digits.
QString formatDurationUpToSeconds(qint64 milliseconds);

/// The integer at the start of a text, 0 without one, saturated to 64 bits.
qint64 leadingInteger(QStringView text);

} // namespace quorvin::Utilities
