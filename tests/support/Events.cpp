// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Events.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace quorvin::test {

namespace {

constexpr int kPatienceMilliseconds = 30'000;

} // namespace

bool spinUntil(const std::function<bool()> &holds)
{
    QElapsedTimer patience;
    patience.start();
    while (!holds() && patience.elapsed() < kPatienceMilliseconds) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
        // A test runs below no event loop, where what deletes itself later would never go.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return holds();
}

} // namespace quorvin::test
