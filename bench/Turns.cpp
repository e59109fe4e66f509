// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Turns.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <ctime>

namespace quorvin::bench {

double millisecondsOf(const std::function<void()> &work)
{
    const auto now = [] {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
    };
    const double start = now();
    work();
    return now() - start;
}

double longestTurnUntil(const std::function<bool()> &isOver)
{
    double longest = 0;
    while (!isOver()) {
        longest = std::max(longest, millisecondsOf([] { QCoreApplication::processEvents(); }));
        // Leaves the processors to the readers.
        QThread::usleep(500);
    }
    return longest;
}

double longestTurnFor(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    return longestTurnUntil([&] { return clock.elapsed() > milliseconds; });
}

double longestTurnOf(const std::function<void()> &work, int milliseconds)
{
    return std::max(millisecondsOf(work), longestTurnFor(milliseconds));
}

} // namespace quorvin::bench
