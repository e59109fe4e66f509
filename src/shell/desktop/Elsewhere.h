// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>
#include <QThreadPool>

#include <utility>

namespace quorvin {

/// Runs `make` on a thread of the pool and then `use` with what it gave, on the calling thread, unless
/// `context` is gone by then.
template <typename Make, typename Use>
void runElsewhere(QThreadPool &pool, QObject *context, Make make, Use use, int priority = 0)
{
    // The carrier lives in the calling thread, so that the context is only looked at there.
    auto *carrier = new QObject;
    pool.start(
        [carrier, context = QPointer<QObject>(context), make = std::move(make), use = std::move(use)] {
            QMetaObject::invokeMethod(
                carrier,
                [carrier, context, use, result = make()] {
                    carrier->deleteLater();
                    if (context)
                        use(result);
                },
                Qt::QueuedConnection);
        },
        priority);
}

} // namespace quorvin
