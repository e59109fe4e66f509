// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/FrameChannel.h"

#include <QTimer>

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kHead = sizeof(quint32);
constexpr std::size_t kPiece = 65'536;

} // namespace

FrameChannel::FrameChannel(int socket, quint32 mostBytes, Listener listener)
    : _notifier(socket, QSocketNotifier::Read), _mostBytes(mostBytes), _listener(std::move(listener))
{
    QObject::connect(&_notifier, &QSocketNotifier::activated, &_notifier, [this] { read(); });
}

FrameChannel::~FrameChannel()
{
    _notifier.setEnabled(false);
    ::close(static_cast<int>(_notifier.socket()));
}

void FrameChannel::send(const QByteArray &frame)
{
    if (!_isLost
        && ::send(static_cast<int>(_notifier.socket()), frame.constData(),
                  static_cast<std::size_t>(frame.size()), MSG_NOSIGNAL | MSG_DONTWAIT)
            != frame.size())
        lose();
}

void FrameChannel::read()
{
    std::array<char, kPiece> piece;
    const ssize_t count
        = ::recv(static_cast<int>(_notifier.socket()), piece.data(), piece.size(), MSG_DONTWAIT);
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (count <= 0)
        return lose();
    _received.append(piece.data(), count);
    takeFrames();
}

void FrameChannel::takeFrames()
{
    while (!_isLost && _received.size() >= kHead) {
        quint32 length = 0;
        std::memcpy(&length, _received.constData(), sizeof length);
        if (length == 0 || length > _mostBytes)
            return lose();
        if (_received.size() < kHead + qsizetype{length})
            return;
        const QByteArray content = _received.mid(kHead, length);
        _received.remove(0, kHead + qsizetype{length});
        if (!_listener.take(content))
            lose();
    }
}

void FrameChannel::lose()
{
    if (std::exchange(_isLost, true))
        return;
    _notifier.setEnabled(false);
    QTimer::singleShot(0, &_notifier, [lost = _listener.lost] { lost(); });
}

} // namespace quorvin
