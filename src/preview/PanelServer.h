// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "preview/PreviewWindow.h"
#include "process/FrameChannel.h"
#include "process/PanelFrames.h"
#include "shell/desktop/ColorScheme.h"

#include <QObject>
#include <QTimer>

namespace quorvin {

/// Obeys the orders that come over a socket, and reports what the user does in the panel. Main thread.
class PanelServer : public QObject {
    Q_OBJECT
public:
    /// Takes the socket.
    explicit PanelServer(int socket, QObject *parent = nullptr);

    PreviewWindow &panel() { return _panel; }

Q_SIGNALS:
    /// The other end is gone: there is nobody to serve any more.
    void lost();

private:
    bool take(QByteArrayView content);
    void obey(const PanelLook &look);
    void obey(const PanelFile &file);
    void obey(const PanelHide &hide);
    void report(const PanelReport &report);
    /// Once for an order.
    void tellDone();
    void tellKept();
    void standAbove(quint64 window);

    PreviewWindow _panel;
    ColorScheme _colorScheme;
    FrameChannel _channel;
    QTimer _patience;
    quint32 _order = 0; ///< number of the last one
    quint32 _told = 0; ///< and of the last one that is reported as done
};

} // namespace quorvin
