// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/WindowFrame.h"

#include "shell/session/LiveSettings.h"
#include "shell/window/WindowPlace.h"

#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QWidget>

namespace quorvin {

namespace {

constexpr QSize kFirstSize(1000, 680);
constexpr int kDecorationMilliseconds = 200; ///< so that the window manager has given it

} // namespace

WindowFrame::WindowFrame(QWidget &window, LiveSettings &settings)
    : QObject(&window), _window(window), _settings(settings)
{
}

void WindowFrame::restore()
{
    // What the decoration takes is known once the window stands.
    const QSize decoration(0, _window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    _window.resize(kFirstSize.boundedTo(_window.screen()->availableSize() - decoration));
    const QByteArray frame = QByteArray::fromBase64(_settings.string(Setting::mainWindowFrame).toLatin1());
    if (!frame.isEmpty())
        _window.restoreGeometry(frame);
}

void WindowFrame::save()
{
    _settings.set(Setting::mainWindowFrame, QString::fromLatin1(_window.saveGeometry().toBase64()));
}

bool WindowFrame::isFree() const
{
    return !_window.isMaximized() && !_window.isFullScreen();
}

void WindowFrame::placeBeside(const QWidget &before)
{
    if (!isFree())
        return;
    const QSize decoration = before.frameGeometry().size() - before.size();
    const QRect frame = frameBeside(before.frameGeometry(), _window.size() + decoration,
                                    before.screen()->availableGeometry());
    _window.move(frame.topLeft());
    _window.resize(frame.size() - decoration);
}

void WindowFrame::windowDidShow()
{
    QTimer::singleShot(kDecorationMilliseconds, this, [this] { keepOnScreen(); });
}

void WindowFrame::keepOnScreen()
{
    const QRect now = _window.frameGeometry();
    const QRect frame = frameWithin(now, _window.screen()->availableGeometry());
    if (!isFree() || frame == now)
        return;
    _window.resize(frame.size() - (now.size() - _window.size()));
    _window.move(frame.topLeft());
}

} // namespace quorvin
