// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

namespace quorvin::bench {

/// Processor time of this thread, so that what else the machine does counts for nothing. Main thread, as all
/// of this file; all in milliseconds.
double millisecondsOf(const std::function<void()> &work);
/// The longest turn of the event loop until then.
double longestTurnUntil(const std::function<bool()> &isOver);
double longestTurnFor(int milliseconds);
/// Of what is done at once and of the turns that follow it.
double longestTurnOf(const std::function<void()> &work, int milliseconds = 300);

} // namespace quorvin::bench
