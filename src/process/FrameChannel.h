// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QSocketNotifier>

#include <functional>

namespace quorvin {

/// One end of a socket between two programs that both live by events. Frames are as readers have them: the
/// length of the content in four bytes, and the content. Whatever else comes, the channel is lost. One
/// thread, which has an event loop.
class FrameChannel {
public:
    struct Listener {
        /// Is given the content of each frame; false for what is no message. The channel must stay while it
        /// runs.
        std::function<bool(QByteArrayView content)> take;
        /// Once, from the event loop: the other end is gone, or what it says is no message. The channel may
        /// be destroyed in it.
        std::function<void()> lost;
    };

    /// Takes the descriptor. A frame with more than `mostBytes`, or none, is no frame.
    FrameChannel(int socket, quint32 mostBytes, Listener listener);
    ~FrameChannel();
    FrameChannel(const FrameChannel &) = delete;
    FrameChannel &operator=(const FrameChannel &) = delete;

    /// Never waits: what the other end has no room for is not sent, and the channel is lost. Nothing is sent
    /// over a lost one.
    void send(const QByteArray &frame);
    bool isLost() const { return _isLost; }

private:
    void read();
    void takeFrames();
    void lose();

    QSocketNotifier _notifier;
    quint32 _mostBytes;
    Listener _listener;
    QByteArray _received;
    bool _isLost = false;
};

} // namespace quorvin
