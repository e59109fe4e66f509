// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "statistics/Bins.h"
#include "statistics/Figures.h"

#include <QString>

namespace quorvin {

/// Quantities as people read them. Never localized. Any thread.

/// "1.5 Mb/s", "2 h 3 min", "1/250 s", "F5.6", "2014-11-19 18:08:04", to three or four digits.
QString measuredText(double value, const Measure &measure);
/// "1 – 2 Mb/s": both sides in the scale of the greater one.
QString rangeText(double from, double to, const Measure &measure);
/// "2014", "2014-11", "2014-11-19", "2014-11-19 18 h"; "November" and "18 h" of what comes again.
QString stepText(qint64 number, DateStep step);

} // namespace quorvin
