// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/preview/PreviewPanel.h"

#include "model/Log.h"
#include "platform/NativePath.h"
#include "shell/session/LiveSettings.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr int kEndMilliseconds = 1000; ///< that a killed process is waited for

} // namespace

PreviewPanel::PreviewPanel(LiveSettings &settings, QString program, QObject *parent)
    : QObject(parent), _settings(settings), _program(std::move(program))
{
    _patience.setSingleShot(true);
    _patience.setInterval(kPatience);
    connect(&_patience, &QTimer::timeout, this,
            [this] { fail(tr("The preview of “%1” took too long and was ended").arg(fileName())); });
    connect(&settings, &LiveSettings::changed, this, &PreviewPanel::settingDidChange);
}

PreviewPanel::~PreviewPanel()
{
    disconnect(this, nullptr, nullptr, nullptr);
    end();
    for (auto *process : findChildren<QProcess *>()) {
        // One that hangs on a dead disk is the system's to collect.
        if (process->state() != QProcess::NotRunning && !process->waitForFinished(kEndMilliseconds))
            process->setParent(nullptr);
    }
}

qint64 PreviewPanel::processId() const
{
    return _process ? _process->processId() : 0;
}

QString PreviewPanel::fileName() const
{
    return lastPathComponent(_path);
}

void PreviewPanel::open(QObject *user, const QString &path, quint64 window)
{
    _path = path;
    _user = user;
    if (!_channel && !start())
        return;
    _isOpen = true;
    showWhenFree({.path = path, .opens = true, .window = window});
    Q_EMIT stateDidChange();
}

void PreviewPanel::follow(QObject *user, const QString &path, quint64 window)
{
    if (!_isOpen)
        return;
    _path = path;
    showWhenFree({.path = path, .opens = _next && _next->opens, .window = window});
    if (std::exchange(_user, user) != user)
        Q_EMIT stateDidChange();
}

void PreviewPanel::close()
{
    if (!_isOpen)
        return;
    _next.reset();
    send(PanelHide());
    setOpen(false);
}

bool PreviewPanel::start()
{
    const QString program = _program.isEmpty()
        ? QCoreApplication::applicationDirPath() + QLatin1String("/quorvin-preview")
        : _program;
    std::array<int, 2> ends{};
    if (!QFileInfo(program).isExecutable()
        || ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        Q_EMIT failed(tr("The preview cannot be shown: its program “%1” is missing").arg(program));
        return false;
    }
    // A number that the child does not give its own, so that giving that clears the close-on-exec mark.
    const int childEnd = ::fcntl(ends[1], F_DUPFD_CLOEXEC, kPanelSocket + 1);
    ::close(ends[1]);
    _process = new QProcess(this);
    _process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    _process->setStandardInputFile(QProcess::nullDevice());
    _process->setStandardOutputFile(QProcess::nullDevice());
    _process->setChildProcessModifier([childEnd] { ::dup2(childEnd, kPanelSocket); });
    _process->start(program, {QString::number(::getpid())});
    ::close(childEnd);
    _sent = _done = _opening = 0;
    _channel = std::make_unique<FrameChannel>(
        ends[0], kMostPanelBytes,
        FrameChannel::Listener{[this](QByteArrayView content) { return take(content); },
                               [this] {
                                   qCInfo(lcQuorvin) << "The preview's program is lost";
                                   fail(tr("The preview of “%1” has crashed").arg(fileName()));
                               }});
    sendLook();
    return true;
}

void PreviewPanel::showWhenFree(const PanelFile &file)
{
    // What the panel is to look like never keeps it from a file.
    const bool isFree = _done == _sent || _sent == 1;
    if (!isFree) {
        _next = file;
        return;
    }
    send(file);
    if (file.opens)
        _opening = _sent;
}

template <typename Order>
void PreviewPanel::send(Order order)
{
    order.number = ++_sent;
    if (!_patience.isActive())
        _patience.start();
    _channel->send(frameOf(PanelOrder(std::move(order))));
}

void PreviewPanel::sendLook()
{
    send(PanelLook{
        .colorScheme = _settings.string(Setting::colorScheme),
        .isRightToLeft = QGuiApplication::isRightToLeft(),
        .useSIUnits = _settings.boolean(Setting::useSIUnits),
        .isMuted = _settings.boolean(Setting::previewMuted),
        .frame = QByteArray::fromBase64(_settings.string(Setting::previewFrame).toLatin1()),
    });
}

void PreviewPanel::settingDidChange(Setting setting)
{
    if (_channel && (setting == Setting::colorScheme || setting == Setting::useSIUnits))
        sendLook();
}

bool PreviewPanel::take(QByteArrayView content)
{
    const auto report = panelReportOf(content);
    return report && std::visit([this](const auto &kind) { return take(kind); }, *report);
}

bool PreviewPanel::take(const PanelDone &done)
{
    if (done.number <= _done || done.number > _sent)
        return false;
    _done = done.number;
    _patience.stop();
    if (_done < _sent)
        _patience.start();
    else if (const auto next = std::exchange(_next, std::nullopt))
        showWhenFree(*next);
    return true;
}

bool PreviewPanel::take(const PanelClosed &closed)
{
    const bool isOpenedSince = _done < _opening || (_next && _next->opens);
    if (!_isOpen || isOpenedSince)
        return true;
    _next.reset();
    setOpen(false);
    if (closed.byKey)
        Q_EMIT closedByKey();
    return true;
}

bool PreviewPanel::take(const PanelKey &key)
{
    if (_isOpen)
        Q_EMIT keyPressed(key);
    return true;
}

bool PreviewPanel::take(const PanelKept &kept)
{
    const QString frame = QString::fromLatin1(kept.frame.toBase64());
    if (kept.isMuted != _settings.boolean(Setting::previewMuted))
        _settings.set(Setting::previewMuted, kept.isMuted);
    if (frame != _settings.string(Setting::previewFrame))
        _settings.set(Setting::previewFrame, frame);
    return true;
}

void PreviewPanel::fail(const QString &sentence)
{
    // Nobody misses one that ends while it is hidden.
    const bool isMissed = _isOpen;
    end();
    setOpen(false);
    if (isMissed)
        Q_EMIT failed(sentence);
}

void PreviewPanel::end()
{
    _channel.reset();
    _next.reset();
    _patience.stop();
    if (QProcess *process = std::exchange(_process, nullptr)) {
        connect(process, &QProcess::finished, process, &QObject::deleteLater);
        if (process->state() == QProcess::NotRunning)
            process->deleteLater();
        process->kill();
    }
}

void PreviewPanel::setOpen(bool isOpen)
{
    if (std::exchange(_isOpen, isOpen) != isOpen)
        Q_EMIT stateDidChange();
}

} // namespace quorvin
