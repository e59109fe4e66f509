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
constexpr QLatin1String kActivateAction("ActivateAction");
constexpr QLatin1String kNewWindow("new-window");
constexpr QLatin1String kSet("set");
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

bool ApplicationService::handOver(const QDBusConnection &bus, const Request &request)
{
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(kApplicationId))
        return false;
    QVariantMap platformData;
    if (const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); !token.isEmpty())
        platformData.insert(QStringLiteral("activation-token"), token);
    const auto ask = [&](QLatin1String method, const QVariantList &words) {
        QDBusMessage call = QDBusMessage::createMethodCall(kApplicationId, kObjectPath, kInterface, method);
        call.setArguments(words + QVariantList{platformData});
        return bus.call(call, QDBus::Block, kAnswerMilliseconds).type() == QDBusMessage::ReplyMessage;
    };
    const auto act = [&](QLatin1String action, const QStringList &words) {
        const QVariantList parameters(words.begin(), words.end());
        return ask(kActivateAction, {QString(action), QVariant(parameters)});
    };
    if (!request.overrides.isEmpty() && !act(kSet, request.overrides))
        return false;
    const QStringList uris = urisOf(request.paths);
    if (request.newWindow)
        return act(kNewWindow, uris);
    return uris.isEmpty() ? ask(QLatin1String("Activate"), {}) : ask(QLatin1String("Open"), {uris});
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
    QStringList words;
    for (const QVariant &parameter : parameters)
        words.append(parameter.canConvert<QDBusVariant>()
                         ? parameter.value<QDBusVariant>().variant().toString()
                         : parameter.toString());
    if (name == kNewWindow)
        _requests.doWorkInNewWindow(pathsOf(words));
    else if (name == kSet)
        _requests.overrideSettings(words);
}

} // namespace quorvin
