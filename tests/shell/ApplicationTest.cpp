// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileUri.h"
#include "platform/NativePath.h"
#include "shell/app/ApplicationService.h"
#include "shell/app/StartArguments.h"
#include "shell/desktop/ColorScheme.h"
#include "shell/session/TemporaryFolders.h"
#include "support/TestFolder.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QSysInfo>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace quorvin {

namespace {

/// A session bus of this test's own.
struct PrivateBus {
    QProcess daemon;
    QString address;

    PrivateBus()
    {
        daemon.start(
            QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        if (daemon.waitForStarted() && daemon.waitForReadyRead())
            address = QString::fromUtf8(daemon.readLine()).trimmed();
    }
    ~PrivateBus()
    {
        daemon.terminate();
        daemon.waitForFinished();
    }
};

struct Requests : OpenRequests {
    QStringList log;
    void activate() override { log.append(QStringLiteral("activate")); }
    void applicationOpenFiles(const QStringList &paths) override { log.append(paths); }
    void doWorkInNewWindow(const QStringList &paths) override
    {
        log.append(QStringLiteral("new:") + paths.join(u','));
    }
    void overrideSettings(const QStringList &assignments) override
    {
        log.append(QStringLiteral("set:") + assignments.join(u','));
    }
};

/// Hands over as another start of the program would, while this thread answers.
bool handOverFromElsewhere(const QString &address, const QStringList &paths, bool newWindow,
                           const QStringList &overrides = {})
{
    std::atomic<int> result = -1;
    std::thread other([&] {
        const QString name = QStringLiteral("other");
        result = ApplicationService::handOver(QDBusConnection::connectToBus(address, name),
                                              {paths, newWindow, overrides});
        QDBusConnection::disconnectFromBus(name);
    });
    while (result < 0)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    other.join();
    return result == 1;
}

} // namespace

TEST(OpenRequest, ReachesTheRunningInstance)
{
    ASSERT_FALSE(QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty());
    const PrivateBus bus;
    ASSERT_FALSE(bus.address.isEmpty());
    EXPECT_FALSE(handOverFromElsewhere(bus.address, {}, false)) << "nobody runs yet";

    Requests requests;
    QObject object;
    ApplicationService service(requests, &object);
    const QString name = QStringLiteral("first");
    ASSERT_TRUE(service.claim(QDBusConnection::connectToBus(bus.address, name)));
    const QString odd = decodePath("/f/\xe4 #%?.mov");
    EXPECT_TRUE(handOverFromElsewhere(bus.address, {}, false));
    EXPECT_TRUE(handOverFromElsewhere(bus.address, {QStringLiteral("/f/\u00fc.mov"), odd}, false));
    EXPECT_TRUE(handOverFromElsewhere(bus.address, {QStringLiteral("/f/1"), QStringLiteral("/f/2")}, true));
    EXPECT_TRUE(handOverFromElsewhere(bus.address, {}, true));
    const QStringList settings{QStringLiteral("a=b,c"), QStringLiteral("d=")};
    EXPECT_TRUE(handOverFromElsewhere(bus.address, {QStringLiteral("/f/3")}, false, settings));
    EXPECT_EQ(requests.log.mid(5), (QStringList{QStringLiteral("set:a=b,c,d="), QStringLiteral("/f/3")}))
        << "before the files, which are read with them";
    requests.log.resize(5);
    EXPECT_EQ(requests.log,
              (QStringList{QStringLiteral("activate"), QStringLiteral("/f/\u00fc.mov"), odd,
                           QStringLiteral("new:/f/1,/f/2"), QStringLiteral("new:")}));
    QDBusConnection::disconnectFromBus(name);
    EXPECT_FALSE(ApplicationService::handOver(QDBusConnection(QStringLiteral("none")), {}));
}

TEST(StartArguments, AreTakenApart)
{
    const auto words = [](const QString &line) { return parseStartArguments(line.split(u' ')); };
    const auto plain
        = words(QStringLiteral("--new-window --set useSIUnits=false /a b/../c file:///d%20e -- --help"));
    ASSERT_TRUE(plain);
    EXPECT_TRUE(plain->newWindow);
    EXPECT_EQ(plain->overrides, QStringList{QStringLiteral("useSIUnits=false")});
    EXPECT_FALSE(plain->answer);
    EXPECT_EQ(plain->paths,
              (QStringList{QStringLiteral("/a"), absolutePath(QStringLiteral("b/../c")),
                           QStringLiteral("/d e"), absolutePath(QStringLiteral("--help"))}));
    EXPECT_TRUE(words(QStringLiteral("--help"))->answer->contains(QStringLiteral("--new-window")));
    EXPECT_TRUE(words(QStringLiteral("--version"))->answer->startsWith(QStringLiteral("quorvin v")));
    EXPECT_FALSE(words(QStringLiteral("--nonsense")));
    EXPECT_FALSE(parseStartArguments({QString()}));
    EXPECT_FALSE(words(QStringLiteral("--set")));
}

TEST(FileUri, LeadsBackToThePath)
{
    for (const char *bytes : {"/", "/a b/%41#?", "/\xc3\xa4\n", "/\xff\xfe.mov"}) {
        const QString path = decodePath(bytes);
        EXPECT_EQ(pathFromUri(QString::fromLatin1(fileUri(path))), path) << bytes;
    }
    EXPECT_EQ(pathFromUri(QStringLiteral("file://localhost/a")), QStringLiteral("/a"));
    for (const char *other : {"/a", "http://host/a", "file://elsewhere/a", "file:a", "file://", ""})
        EXPECT_EQ(pathFromUri(QLatin1String(other)), std::nullopt) << other;
    EXPECT_EQ(pathFromUri(QStringLiteral("file://%1/a").arg(QSysInfo::machineHostName().toUpper())),
              QStringLiteral("/a"));
    EXPECT_EQ(pathsFromUriList("file:///a\xff%ff"), QStringList{decodePath("/a\xff\xff")});
    EXPECT_EQ(pathsFromUriList("# comment\r\nfile:///a\r\nfile:///b\r\n"),
              (QStringList{QStringLiteral("/a"), QStringLiteral("/b")}));
}

TEST(TemporaryFolders, GoWithTheRunAndAfterAKilledOne)
{
    const test::TestFolder temporary;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", temporary.path().toUtf8());
    const auto left
        = [&] { return QDir(temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); };
    const QString elsewhere = temporary / QStringLiteral("elsewhere/deep");
    {
        TemporaryFolders folders;
        EXPECT_TRUE(left().isEmpty()) << "nothing is made before it is needed";
        const auto one = folders.makeFolder(QStringLiteral("_Previews"));
        const auto two = folders.makeFolder(QStringLiteral("_Previews"));
        ASSERT_TRUE(one && two);
        EXPECT_NE(*one, *two);
        QDir().mkpath(elsewhere);
        folders.add(elsewhere);
        TemporaryFolders::removeLeftovers();
        EXPECT_TRUE(QDir(*one).exists()) << "this run lives";
    }
    EXPECT_EQ(left(), QStringList{QStringLiteral("elsewhere")});
    EXPECT_FALSE(QDir(elsewhere).exists());

    // A process number that no process has, as a killed run leaves it behind.
    QDir().mkpath(temporary / QStringLiteral("quorvin-run-ABCDEF/_Previews"));
    temporary.write(QStringLiteral("quorvin-run-ABCDEF.lock"),
                    "999999999\nquorvin\n" + QSysInfo::machineHostName().toUtf8() + '\n');
    TemporaryFolders::removeLeftovers();
    EXPECT_FALSE(QDir(temporary / QStringLiteral("quorvin-run-ABCDEF")).exists());
    qputenv("TMPDIR", before);
}

TEST(ColorScheme, TakesWishesAndTellsPalettesApart)
{
    EXPECT_EQ(ColorScheme::wishFrom(QStringLiteral("dark")), ColorScheme::Wish::Dark);
    EXPECT_EQ(ColorScheme::wishFrom(QStringLiteral("light")), ColorScheme::Wish::Light);
    EXPECT_EQ(ColorScheme::wishFrom(QStringLiteral("pink")), ColorScheme::Wish::System);
    ColorScheme scheme;
    for (const char *wish : {"dark", "light", "dark"}) {
        scheme.follow(QLatin1String(wish));
        EXPECT_EQ(ColorScheme::isDark(QApplication::palette()), QLatin1String(wish) == QLatin1String("dark"));
    }
    scheme.follow(QStringLiteral("light"));
}

} // namespace quorvin
