// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/app/Application.h"

#include "model/Log.h"

#include <QElapsedTimer>
#include <QThread>

namespace quorvin {

bool Application::notify(QObject *receiver, QEvent *event)
{
    // Other threads deliver their events through here too, and a loop inside an event waits on purpose.
    if (!_probesStalls || QThread::currentThread() != thread())
        return QApplication::notify(receiver, event);
    const QByteArray name = receiver->metaObject()->className();
    const QEvent::Type type = event->type();
    QElapsedTimer timer;
    timer.start();
    ++_depth;
    const bool handled = QApplication::notify(receiver, event);
    --_depth;
    if (_depth == 0 && timer.elapsed() > kStallMilliseconds)
        qCInfo(lcQuorvin).noquote() << QStringLiteral("The event loop stood for %1 ms: %2, event %3")
                                           .arg(timer.elapsed())
                                           .arg(QString::fromLatin1(name))
                                           .arg(int{type});
    return handled;
}

} // namespace quorvin
