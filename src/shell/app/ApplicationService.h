// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QStringList>
#include <QVariantMap>

namespace quorvin {

/// The name on the session bus, and of the desktop file and the icon.
inline constexpr QLatin1String kApplicationId("org.quorvin.Quorvin");

/// What another start of the program may ask of this one.
class OpenRequests {
public:
    virtual ~OpenRequests() = default;
    /// Started without files: a window comes to the front.
    virtual void activate() = 0;
    virtual void applicationOpenFiles(const QStringList &paths) = 0;
    /// No paths: an empty window.
    virtual void doWorkInNewWindow(const QStringList &paths) = 0;
    /// KEY=VALUE each, for the run that is asked.
    virtual void overrideSettings(const QStringList &assignments) = 0;
};

/// The freedesktop application interface of the running instance.
class ApplicationService : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    /// Both must outlive this object; `parent` becomes the object on the bus.
    ApplicationService(OpenRequests &requests, QObject *parent);

    /// Takes the name. False when there is no bus, or when another instance has it.
    bool claim(QDBusConnection bus);

    /// What a start of the program asks for.
    struct Request {
        QStringList paths; ///< absolute
        bool newWindow = false;
        QStringList overrides; ///< KEY=VALUE, to be in force before the files are read
    };
    /// Hands the request over to the instance that runs. False when there is none, or no bus. Waits for the
    /// answer, for a start of the program that has nothing else to do.
    static bool handOver(const QDBusConnection &bus, const Request &request);

    Q_SLOT void Activate(const QVariantMap &platformData);
    Q_SLOT void Open(const QStringList &uris, const QVariantMap &platformData);
    /// "new-window" with addresses of files, and "set" with KEY=VALUE.
    Q_SLOT void ActivateAction(const QString &name, const QVariantList &parameters,
                               const QVariantMap &platformData);

private:
    OpenRequests &_requests;
};

} // namespace quorvin
