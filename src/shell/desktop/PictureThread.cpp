// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/PictureThread.h"

#include "shell/desktop/Elsewhere.h"

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
    runElsewhere(pictureThread(), context, std::move(make), std::move(use), ++newest);
}

} // namespace quorvin
