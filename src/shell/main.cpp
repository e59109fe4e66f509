// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HeapMemory.h"
#include "platform/LoadedLibrary.h"
#include "platform/NativePath.h"
#include "platform/Settings.h"
#include "platform/StandardStreams.h"
#include "platform/Startup.h"
#include "platform/UserLocale.h"
#include "readers/RecordBuilder.h"
#include "shell/app/AppController.h"
#include "shell/app/Application.h"
#include "shell/app/StartArguments.h"
#include "shell/desktop/BackgroundRun.h"

#include <QFontDatabase>
#include <QIcon>
#include <QImageReader>
#include <QMimeDatabase>
#include <QThreadPool>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

using namespace quorvin;

namespace {

constexpr std::chrono::seconds kPatience(3); ///< with background work when the program ends

void nameApplication()
{
    QGuiApplication::setDesktopFileName(kApplicationId);
    QCoreApplication::setApplicationName(QStringLiteral("quorvin"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/org.quorvin.Quorvin.svg")));
}

int wrongCall(const QString &problem)
{
    std::fprintf(stderr, "quorvin: %s\nquorvin: try 'quorvin --help'\n", qPrintable(problem));
    return 2;
}

/// The first text waits for the fonts of the system to be listed. That goes on while the toolkit reaches the
/// display.
std::jthread listFonts()
{
    return std::jthread([] {
        const LoadedLibrary fontconfig("libfontconfig.so.1");
        LibraryEntry<int()>(fontconfig, "FcInit")();
    });
}

/// What the first window would otherwise wait for.
void prepareWindowInBackground()
{
    QThreadPool::globalInstance()->start([] { QDBusConnection::sessionBus(); });
    QThreadPool::globalInstance()->start([] {
        QFontDatabase::hasFamily(QString());
        QImageReader::supportedImageFormats();
    });
}

/// What the first file would otherwise wait for.
void prepareInBackground()
{
    QThreadPool::globalInstance()->start([] {
        TemporaryFolders::removeLeftovers();
        QMimeDatabase().mimeTypeForName(QStringLiteral("video/mp4"));
    });
}

int runWindows(Settings &settings, const StartArguments &arguments)
{
    AppController controller(settings);
    controller.isReachable = controller.service().claim(QDBusConnection::sessionBus());
    controller.doWorkInNewWindow(arguments.paths);
    if (arguments.paths.isEmpty() && !arguments.newWindow)
        controller.restoreLastList();
    return QApplication::exec();
}

int run(Settings &settings, const StartArguments &arguments)
{
    takeStandardStreams();
    useUtf8CharacterType();
    if (!settings.boolean(Setting::readerProcesses))
        RecordBuilder::setupLibraries();
    prepareInBackground();
    const int status = runWindows(settings, arguments);
    // An export that was under way takes away what is not complete. What hangs longer than that on a dead
    // disk is not to see the program fall apart around it.
    if (!BackgroundRunBase::awaitThreads(kPatience))
        std::_Exit(status);
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    setUpProcess();
    keepHeapCompact();
    const auto arguments = parseStartArguments(decodeWords(argc, argv));
    if (!arguments)
        return wrongCall(arguments.error().description);
    if (arguments->answer) {
        std::fputs(arguments->answer->toUtf8().constData(), stdout);
        return 0;
    }
    Settings settings(Settings::userPath());
    for (const QString &assignment : arguments->overrides) {
        if (const auto set = settings.overrideFrom(assignment); !set)
            return wrongCall(set.error().description);
    }
    const std::jthread fonts = listFonts();
    // The words are all ours; the toolkit looks at none of them.
    int noWords = 1;
    const Application application(noWords, argv);
    prepareWindowInBackground();
    nameApplication();
    if (qEnvironmentVariable("QUORVIN_LAYOUT_DIRECTION") == QLatin1String("rtl"))
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    if (ApplicationService::handOver(QDBusConnection::sessionBus(),
                                     {arguments->paths, arguments->newWindow, arguments->overrides}))
        return 0;
    return run(settings, *arguments);
}
