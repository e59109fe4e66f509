// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin::Utilities {

/// A number of bytes in decimal units (KB is 1000 bytes) or binary ones (KiB is 1024): whole bytes below the
/// first unit, else three digits at least, "1.50 MB", "15.0 MB", "150 MB", rounded half to even. A negative
/// number counts as tera-units. Never localized.
QString filesizeToMacHumanString(qint64 bytes);
QString filesizeToBase2HumanString(qint64 bytes);

/// "%.*f": fixed notation with that many decimals, exact, half to even, independent of the locale.
QString fixedNotation(double value, int decimals);

} // namespace quorvin::Utilities
