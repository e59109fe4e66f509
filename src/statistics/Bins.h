// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "statistics/Figures.h"

#include <QtGlobal>

#include <vector>

namespace quorvin {

/// Ranges one beside the other: each from its edge up to the next one, which belongs to the next.
struct Bins {
    std::vector<double> edges; ///< one more than there are bins; the last is above the greatest value
    bool isLogarithmic = false;
};

/// The bins of numbers. Edges are multiples of a step of 1, 2 or 5 and its tens, never below 1 for whole
/// numbers; the step is the narrowest that is not below that of Freedman and Diaconis, held to
/// `kFewestBins` and `kMostBins`. Where all are above 0 and the greatest is a thousand times the least,
/// edges are 1, 2 and 5 of each ten.
Bins binsOf(const Figures &figures);

inline constexpr int kFewestBins = 5;
inline constexpr int kMostBins = 100;

/// How dates are told apart: along the time, or by a part of them that comes again.
enum class DateStep : quint8 { Year, Month, Day, Hour, MonthOfYear, HourOfDay };

/// The step of a date by its number: those of neighbours along the time are neighbours, those of a year begin
/// at 0, as those of a day. `seconds` since the beginning of 1970.
qint64 stepOf(double seconds, DateStep step);
/// When the step of that number begins, likewise. Only along the time.
double beginOfStep(qint64 number, DateStep step);
bool isAlongTime(DateStep step);
/// The finest step along the time that makes no more than `kMostBins` of a range of dates.
DateStep finestStep(double least, double greatest);
/// The same or the finest coarser one that makes no more than `kMostSteps`.
DateStep boundedStep(DateStep step, double least, double greatest);

inline constexpr qint64 kMostSteps = 5000;

} // namespace quorvin
