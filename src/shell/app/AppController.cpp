// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/app/AppController.h"

#include "model/Log.h"
#include "model/Version.h"
#include "shell/app/Application.h"
#include "shell/commands/CommandSet.h"
#include "shell/desktop/PlainText.h"
#include "shell/preferences/PreferencesWindowController.h"
#include "shell/window/MainWindowController.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QUrl>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kCascade = 28;

void bringToFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

AppController::AppController(Settings &settings)
    : _session(settings), _service(new ApplicationService(*this, this))
{
    QApplication::setQuitOnLastWindowClosed(false);
    connect(&_session.settings, &LiveSettings::changed, this, &AppController::settingDidChange);
    settingDidChange(Setting::colorScheme);
    settingDidChange(Setting::debugStalls);
}

AppController::~AppController()
{
    delete _preferences;
    while (!_windows.empty())
        _windows.back()->close();
}

MainWindowController *AppController::openEmptyWindow()
{
    const LiveSettings &settings = _session.settings;
    const int openTab = settings.integer(Setting::openTab);
    auto *window = new MainWindowController(_session);
    connect(window, &MainWindowController::closed, this, &AppController::windowClosed);
    registerCommands(*window);
    // A further window does not hide the one before.
    if (!_windows.empty() && !window->isMaximized() && !window->isFullScreen())
        window->move(_windows.back()->pos() + QPoint(kCascade, kCascade));
    _windows.push_back(window);
    window->setCurrentTab(tabFrom(openTab != 0 ? openTab - 1 : settings.integer(Setting::lastTab)));
    window->show();
    window->activateWindow();
    return window;
}

void AppController::registerCommands(MainWindowController &window)
{
    CommandSet &commands = window.commands();
    commands.on(Command::openEmptyWindow, [this] { openEmptyWindow(); });
    commands.on(Command::openFileInNewWindow, [this] { openFileInNewWindow(); });
    commands.on(Command::quit, [this] { quit(); });
    commands.on(Command::openPreferences, [this] { openPreferences(); });
    commands.on(Command::openAcknowledgments, [this] { openAcknowledgments(); });
    commands.on(Command::openAboutPanel, [this, &window] { openAboutPanel(&window); });
}

void AppController::windowClosed(MainWindowController *window)
{
    LiveSettings &settings = _session.settings;
    settings.set(Setting::lastTab, static_cast<int>(window->currentTab()));
    std::erase(_windows, window);
    if (_windows.empty() && (!isReachable || settings.boolean(Setting::terminateAppWhenAllWindowsClosed)))
        quit();
}

void AppController::activate()
{
    bringToFront(_windows.empty() ? *openEmptyWindow() : *_windows.back());
}

void AppController::applicationOpenFiles(const QStringList &paths)
{
    MainWindowController *window = windowForOpenRequest();
    if (!window)
        return doWorkInNewWindow(paths);
    window->processUrls(paths);
    bringToFront(*window);
}

MainWindowController *AppController::windowForOpenRequest() const
{
    if (auto *front = qobject_cast<MainWindowController *>(QApplication::activeWindow()))
        return front->isUntouched() ? front : nullptr;
    const auto newest
        = std::find_if(_windows.rbegin(), _windows.rend(),
                       [](const MainWindowController *window) { return window->isUntouched(); });
    return newest == _windows.rend() ? nullptr : *newest;
}

void AppController::doWorkInNewWindow(const QStringList &paths)
{
    MainWindowController *window = openEmptyWindow();
    if (!paths.isEmpty())
        window->processUrls(paths);
}

void AppController::processTemporaryFilesInNewWindow(const QStringList &paths, const QString &fromFolder)
{
    _session.temporaryFolders.add(fromFolder);
    doWorkInNewWindow(paths);
}

void AppController::openFileInNewWindow() const
{
    auto *dialog = new QFileDialog(nullptr, tr("Open in New Window"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    connect(dialog, &QFileDialog::filesSelected, this, &AppController::doWorkInNewWindow);
    dialog->open();
}

void AppController::openPreferences()
{
    if (!_preferences)
        _preferences = new PreferencesWindowController(_session.settings);
    bringToFront(*_preferences);
}

void AppController::openAboutPanel(QWidget *parent)
{
    QMessageBox *panel
        = plainMessage(parent, tr("About Quorvin"), QStringLiteral("Quorvin %1").arg(programVersion()),
                       tr("Tells what media files are and what is inside them.\n\nFree software "
                          "under the GPL, version 3 or later."),
                       QMessageBox::Close);
    panel->setIconPixmap(QApplication::windowIcon().pixmap(64));
    panel->open();
}

void AppController::openAcknowledgments()
{
    const auto folder = _session.temporaryFolders.makeFolder(QStringLiteral("Acknowledgments"));
    if (!folder) {
        qCInfo(lcQuorvin).noquote() << "Failed to make a temporary folder:" << folder.error().description;
        return;
    }
    const QString path = *folder + QLatin1String("/Acknowledgments.html");
    if (QFile::copy(QStringLiteral(":/Acknowledgments.html"), path))
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void AppController::quit()
{
    while (!_windows.empty())
        _windows.back()->close();
    QApplication::quit();
}

void AppController::settingDidChange(Setting setting)
{
    const LiveSettings &settings = _session.settings;
    if (setting == Setting::colorScheme)
        _colorScheme.follow(settings.string(setting));
    else if (auto *application = dynamic_cast<Application *>(QCoreApplication::instance());
             application && setting == Setting::debugStalls)
        application->setStallProbe(settings.boolean(setting));
}

} // namespace quorvin
