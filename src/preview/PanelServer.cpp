// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/PanelServer.h"

#include <QGuiApplication>
#include <QWindow>

#include <utility>
#include <variant>

namespace quorvin {

namespace {

/// A file that takes longer is reported as shown all the same, so that the next one can come.
constexpr int kSettleMilliseconds = 300;

} // namespace

PanelServer::PanelServer(int socket, QObject *parent)
    : QObject(parent),
      _channel(socket, kMostPanelBytes,
               {[this](QByteArrayView content) { return take(content); }, [this] { Q_EMIT lost(); }})
{
    _patience.setSingleShot(true);
    _patience.setInterval(kSettleMilliseconds);
    connect(&_patience, &QTimer::timeout, this, &PanelServer::tellDone);
    connect(&_panel, &PreviewWindow::settled, this, &PanelServer::tellDone);
    connect(&_panel, &PreviewWindow::mutedChanged, this, &PanelServer::tellKept);
    connect(&_panel, &PreviewWindow::closed, this, [this](bool byKey) {
        tellKept();
        report(PanelClosed{byKey});
    });
    connect(&_panel, &PreviewWindow::keyUnused, this,
            [this](int key, Qt::KeyboardModifiers modifiers, const QString &text, bool isRepeated) {
                report(PanelKey{key, static_cast<quint32>(modifiers.toInt()), text, isRepeated});
            });
}

bool PanelServer::take(QByteArrayView content)
{
    const auto order = panelOrderOf(content);
    if (!order)
        return false;
    _order = std::visit([](const auto &kind) { return kind.number; }, *order);
    std::visit([this](const auto &kind) { obey(kind); }, *order);
    return true;
}

void PanelServer::obey(const PanelLook &look)
{
    QGuiApplication::setLayoutDirection(look.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    _colorScheme.follow(look.colorScheme);
    _panel.setUsesSIUnits(look.useSIUnits);
    _panel.setMuted(look.isMuted);
    if (!look.frame.isEmpty() && !_panel.isVisible())
        _panel.restoreGeometry(look.frame);
    tellDone();
}

void PanelServer::obey(const PanelFile &file)
{
    if (!file.opens && !_panel.isVisible())
        return tellDone();
    _patience.start();
    standAbove(file.window);
    if (file.opens) {
        _panel.show();
        _panel.raise();
        _panel.activateWindow();
    }
    _panel.showFile(file.path);
}

void PanelServer::obey(const PanelHide &)
{
    if (_panel.isVisible()) {
        tellKept();
        _panel.hide();
    }
    _panel.clear();
    tellDone();
}

void PanelServer::standAbove(quint64 window)
{
    _panel.winId();
    QWindow *const handle = _panel.windowHandle();
    QWindow *const before = handle->transientParent();
    if (window == 0)
        return;
    if (before && before->winId() == window)
        return;
    handle->setTransientParent(QWindow::fromWinId(static_cast<WId>(window)));
    delete before;
}

void PanelServer::report(const PanelReport &report)
{
    _channel.send(frameOf(report));
}

void PanelServer::tellDone()
{
    _patience.stop();
    if (std::exchange(_told, _order) != _order)
        report(PanelDone{_order});
}

void PanelServer::tellKept()
{
    report(PanelKept{_panel.isMuted(), _panel.saveGeometry()});
}

} // namespace quorvin
