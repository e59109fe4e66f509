// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/AccessibleTree.h"

#include "support/Events.h"
#include "support/TestFolder.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QFileInfo>

#include <array>
#include <utility>

namespace quorvin::test {

namespace {

using namespace Qt::StringLiterals;

constexpr int kTreePatience = 20'000; ///< milliseconds
constexpr int kDeepest = 40;
constexpr QLatin1String kAccessible("org.a11y.atspi.Accessible");

/// The bits of the protocol that matter here.
constexpr std::array kStates{
    std::pair{4, "checked"},
    std::pair{12, "focused"},
    std::pair{23, "selected"},
    std::pair{25, "showing"},
};

const QString kSessionBus = u"quorvin-session"_s;
const QString kReadersBus = u"quorvin-readers"_s;

QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

AccessibleTree::AccessibleTree(const QStringList &words, const QString &folder)
    : _environment(QProcessEnvironment::systemEnvironment())
{
    _environment.insert(u"XDG_CONFIG_HOME"_s, folder);
    _environment.insert(u"XDG_RUNTIME_DIR"_s, folder);
    // Without -noreset the display starts anew when the launcher, its first client, leaves, and refuses
    // whoever comes in that moment.
    if (!start(_display, u"Xvfb"_s,
               {u"-noreset"_s, u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x900x24"_s}))
        return;
    _environment.insert(u"DISPLAY"_s, u':' + firstLineOf(_display));
    if (!start(_bus, u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s}))
        return;
    const QString address = firstLineOf(_bus);
    _environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
    if (!start(_launcher, u"/usr/libexec/at-spi-bus-launcher"_s, {u"--launch-immediately"_s}))
        return;
    QDBusConnection::connectToBus(address, kSessionBus);
    QDBusConnection::connectToBus(busOfReaders(), kReadersBus);
    _environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    _environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
    start(_program, QFileInfo(commandLineProgram()).path() + u"/quorvin"_s, words);
}

AccessibleTree::~AccessibleTree()
{
    QDBusConnection::disconnectFromBus(kReadersBus);
    QDBusConnection::disconnectFromBus(kSessionBus);
    for (QProcess *process : {&_program, &_launcher, &_bus, &_display}) {
        process->terminate();
        process->waitForFinished(kTreePatience);
    }
}

bool AccessibleTree::start(QProcess &process, const QString &program, const QStringList &words)
{
    process.setProcessEnvironment(_environment);
    process.start(program, words);
    if (!process.waitForStarted(kTreePatience))
        _problem = program + u": "_s + process.errorString();
    return _problem.isEmpty();
}

QString AccessibleTree::firstLineOf(QProcess &process)
{
    while (!process.canReadLine() && process.waitForReadyRead(kTreePatience)) { }
    const QString line = QString::fromUtf8(process.readLine()).trimmed();
    if (line.isEmpty())
        _problem = process.program() + u" says nothing"_s;
    return line;
}

QString AccessibleTree::busOfReaders() const
{
    QString address;
    // The launcher takes a while to be reached.
    spinUntil([&] {
        const auto call = QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s,
                                                         u"org.a11y.Bus"_s, u"GetAddress"_s);
        const QDBusMessage reply = QDBusConnection(kSessionBus).call(call);
        address
            = reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0).toString() : QString();
        return !address.isEmpty();
    });
    return address;
}

QVariant AccessibleTree::ask(const Object &object, const QString &interface, const QString &method)
{
    return answerTo(QDBusMessage::createMethodCall(object.service, object.path, interface, method));
}

QString AccessibleTree::property(const Object &object, const QString &name)
{
    auto call = QDBusMessage::createMethodCall(object.service, object.path,
                                               u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << QString(kAccessible) << name;
    return unwrapped(answerTo(call)).toString();
}

QVariant AccessibleTree::answerTo(const QDBusMessage &call)
{
    const QDBusMessage reply = QDBusConnection(kReadersBus).call(call);
    // What was there a moment ago may have gone.
    _isTorn = _isTorn || reply.type() != QDBusMessage::ReplyMessage;
    return _isTorn ? QVariant() : reply.arguments().value(0);
}

std::vector<AccessibleTree::Object> AccessibleTree::objectsIn(const QVariant &list)
{
    std::vector<Object> objects;
    if (!list.canConvert<QDBusArgument>())
        return objects;
    const auto argument = list.value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        Object object;
        QDBusObjectPath path;
        argument.beginStructure();
        argument >> object.service >> path;
        argument.endStructure();
        object.path = path.path();
        objects.push_back(object);
    }
    argument.endArray();
    return objects;
}

std::optional<AccessibleTree::Object> AccessibleTree::application()
{
    const Object registry{u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s};
    const auto applications = objectsIn(ask(registry, kAccessible, u"GetChildren"_s));
    return applications.empty() ? std::nullopt : std::optional(applications.front());
}

void AccessibleTree::append(const Object &object, int depth, QStringList &lines)
{
    const QVariant answer = ask(object, kAccessible, u"GetState"_s);
    QList<uint> bits;
    if (answer.canConvert<QDBusArgument>())
        answer.value<QDBusArgument>() >> bits;
    QStringList states;
    for (const auto &[bit, name] : kStates) {
        if (!bits.isEmpty() && (bits[0] >> bit & 1U) != 0)
            states.append(QLatin1String(name));
    }
    const bool isShown = states.removeAll(u"showing"_s) > 0;
    if (depth > kDeepest || (depth > 0 && !isShown))
        return;
    QString line = QString(2 * depth, u' ') + ask(object, kAccessible, u"GetRoleName"_s).toString() + u" \""_s
        + property(object, u"Name"_s) + u'"';
    if (const QString description = property(object, u"Description"_s); !description.isEmpty())
        line += u" ("_s + description + u')';
    if (!states.isEmpty())
        line += u" ["_s + states.join(u' ') + u']';
    lines.append(line);
    for (const Object &child : objectsIn(ask(object, kAccessible, u"GetChildren"_s)))
        append(child, depth + 1, lines);
}

QStringList AccessibleTree::lines()
{
    QStringList lines;
    _isTorn = false;
    if (const auto program = application())
        append(*program, 0, lines);
    return _isTorn ? QStringList() : lines;
}

QStringList AccessibleTree::linesWith(const QString &text)
{
    QStringList found;
    bool isThere = false;
    spinUntil([&] {
        if (isThere)
            return true;
        // The text may have come while the tree was read, so that half of it is older.
        const QStringList before = std::exchange(found, lines());
        isThere = found == before && !found.filter(text).isEmpty();
        return isThere;
    });
    if (!isThere)
        found.append(QString::fromUtf8(_program.readAllStandardError()).split(u'\n'));
    return found;
}

} // namespace quorvin::test
