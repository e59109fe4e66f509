// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/app/ApplicationService.h"

#include "platform/FileUri.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace quorvin {

namespace {

constexpr QLatin1String kObjectPath("/org/quorvin/Quorvin");
constexpr QLatin1String kInterface("org.freedesktop.Application");
constexpr QLatin1String kNewWindow("new-window");
constexpr int kAnswerMilliseconds = 5000;

QStringList urisOf(const QStringList &paths)
{
    QStringList uris;
    for (const QString &path : paths)
        uris.append(QString::fromLatin1(fileUri(path)));
    return uris;
}

QStringList pathsOf(const QStringList &uris)
{
    QStringList paths;
    for (const QString &uri : uris) {
        if (const auto path = pathFromUri(uri))
            paths.append(*path);
    }
    return paths;
}

} // namespace

ApplicationService::ApplicationService(OpenRequests &requests, QObject *parent)
    : QDBusAbstractAdaptor(parent), _requests(requests)
{
}

bool ApplicationService::claim(QDBusConnection bus)
{
    return bus.isConnected() && bus.registerObject(kObjectPath, parent())
        && bus.registerService(kApplicationId);
}

bool ApplicationService::handOver(const QDBusConnection &bus, const QStringList &paths, bool newWindow)
{
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(kApplicationId))
        return false;
    const QStringList uris = urisOf(paths);
    const auto method = newWindow ? QLatin1String("ActivateAction")
        : paths.isEmpty()         ? QLatin1String("Activate")
                                  : QLatin1String("Open");
    QDBusMessage call = QDBusMessage::createMethodCall(kApplicationId, kObjectPath, kInterface, method);
    QVariantMap platformData;
    if (const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); !token.isEmpty())
        platformData.insert(QStringLiteral("activation-token"), token);
    if (newWindow)
        call << QString(kNewWindow) << QVariantList(uris.begin(), uris.end());
    else if (!paths.isEmpty())
        call << uris;
    call << platformData;
    return bus.call(call, QDBus::Block, kAnswerMilliseconds).type() == QDBusMessage::ReplyMessage;
}

void ApplicationService::Activate(const QVariantMap &)
{
    _requests.activate();
}

void ApplicationService::Open(const QStringList &uris, const QVariantMap &)
{
    _requests.applicationOpenFiles(pathsOf(uris));
}

void ApplicationService::ActivateAction(const QString &name, const QVariantList &parameters,
                                        const QVariantMap &)
{
    if (name != kNewWindow)
        return;
    QStringList uris;
    for (const QVariant &parameter : parameters)
        uris.append(parameter.canConvert<QDBusVariant>()
                        ? parameter.value<QDBusVariant>().variant().toString()
                        : parameter.toString());
    _requests.doWorkInNewWindow(pathsOf(uris));
}

} // namespace quorvin
