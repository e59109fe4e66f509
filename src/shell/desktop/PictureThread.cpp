// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/PictureThread.h"

#include <QPointer>
#include <QThreadPool>

#include <utility>

namespace quorvin {

namespace {

QThreadPool &pictureThread()
{
    static QThreadPool pool;
    pool.setMaxThreadCount(1);
    return pool;
}

} // namespace

void decodeElsewhere(QObject *context, std::function<QImage()> make, std::function<void(const QImage &)> use)
{
    static int newest = 0;
    // The carrier lives in the calling thread, so that the context is only looked at there.
    auto *carrier = new QObject;
    pictureThread().start(
        [carrier, context = QPointer<QObject>(context), make = std::move(make), use = std::move(use)] {
            QMetaObject::invokeMethod(
                carrier,
                [carrier, context, use, picture = make()] {
                    carrier->deleteLater();
                    if (context)
                        use(picture);
                },
                Qt::QueuedConnection);
        },
        ++newest);
}

} // namespace quorvin
