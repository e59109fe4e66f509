// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Log.h"
#include "platform/EndWithParent.h"
#include "platform/StandardStreams.h"
#include "platform/Startup.h"
#include "platform/UserLocale.h"
#include "preview/NoNetwork.h"
#include "preview/PanelServer.h"
#include "process/PanelFrames.h"

#include <QApplication>
#include <QIcon>

#include <cstdlib>

// The preview panel, resident: shows the files that its parent names over the socket. Started as
// "quorvin-preview PARENT", with the parent's process number.

using namespace quorvin;

int main(int argc, char **argv)
{
    if (argc != 2)
        return EXIT_FAILURE;
    endWithParent(static_cast<pid_t>(std::strtol(argv[1], nullptr, 10)), kPanelSocket);
    setUpProcess();
    // The other backend crashes where its plugins are not installed, and this one needs none.
    if (!qEnvironmentVariableIsSet("QT_MEDIA_BACKEND"))
        qputenv("QT_MEDIA_BACKEND", "ffmpeg");
    int noWords = 1;
    const QApplication application(noWords, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.quorvin.Quorvin"));
    QCoreApplication::setApplicationName(QStringLiteral("quorvin"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/org.quorvin.Quorvin.svg")));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    takeStandardStreams();
    useUtf8CharacterType();
    if (!shutOffNetwork())
        qCInfo(lcQuorvin) << "The preview runs without a filter of the network";
    PanelServer server(kPanelSocket);
    QObject::connect(&server, &PanelServer::lost, &application, &QCoreApplication::quit);
    return QApplication::exec();
}
