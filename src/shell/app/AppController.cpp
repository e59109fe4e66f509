// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/app/AppController.h"

#include "model/Log.h"
#include "model/Version.h"
#include "platform/NativePath.h"
#include "shell/app/Application.h"
#include "shell/app/LastList.h"
#include "shell/commands/CommandSet.h"
#include "shell/compare/ComparisonView.h"
#include "shell/desktop/BackgroundRun.h"
#include "shell/desktop/ItemViewAccess.h"
#include "shell/desktop/OpenDialog.h"
#include "shell/desktop/PlainText.h"
#include "shell/info/InfoView.h"
#include "shell/preferences/PreferencesWindowController.h"
#include "shell/session/LastFolder.h"
#include "shell/window/CompareCommands.h"
#include "shell/window/DiagnosticsCommands.h"
#include "shell/window/ListMenu.h"
#include "shell/window/MainView.h"
#include "shell/window/MainWindowController.h"
#include "shell/window/PreviewCommands.h"
#include "shell/window/WindowProject.h"

#include <QDesktopServices>
#include <QFile>
#include <QSet>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

void bringToFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

QStringList foldersOf(const std::vector<FilelistItemPtr> &files)
{
    QSet<QString> folders;
    for (const FilelistItemPtr &file : files)
        folders.insert(withoutLastPathComponent(file->filename()));
    return folders.values();
}

} // namespace

AppController::AppController(Settings &settings)
    : _session(settings), _service(new ApplicationService(*this, this))
{
    QApplication::setQuitOnLastWindowClosed(false);
    tellFocusOfItemViews();
    connect(&_session.settings, &LiveSettings::changed, this, &AppController::settingDidChange);
    settingDidChange(Setting::colorScheme);
    settingDidChange(Setting::debugStalls);
}

AppController::~AppController()
{
    delete _preferences;
    while (!_windows.empty()) {
        _windows.back()->project().forgetChanges();
        _windows.back()->close();
    }
    // They delete themselves a turn later, when what they lean on would be gone.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

MainWindowController *AppController::openEmptyWindow()
{
    const LiveSettings &settings = _session.settings;
    const int openTab = settings.integer(Setting::openTab);
    auto *window = new MainWindowController(_session);
    connect(window, &MainWindowController::closed, this, &AppController::windowClosed);
    registerCommands(*window);
    if (!_windows.empty())
        window->placeBeside(*_windows.back());
    _windows.push_back(window);
    window->setCurrentTab(tabFrom(openTab != 0 ? openTab - 1 : settings.integer(Setting::lastTab)));
    window->show();
    window->activateWindow();
    return window;
}

MainWindowController *AppController::compareInNewWindow(const std::vector<FilelistItemPtr> &files,
                                                        std::optional<ComparisonFilter> filter)
{
    MainWindowController *window = openEmptyWindow();
    std::vector<FilelistItemPtr> own;
    QStringList roots;
    for (const FilelistItemPtr &file : files) {
        own.push_back(file->copyWithResult());
        roots.append(file->filename());
    }
    window->files().setFiles(own, roots);
    if (filter)
        window->myView().info().comparison().setFilter(*filter);
    window->setCurrentTab(Tab::Comparison);
    return window;
}

void AppController::registerCommands(MainWindowController &window)
{
    CommandSet &commands = window.commands();
    new PreviewCommands(_preview, window);
    new ListMenu(_preview, window);
    new DiagnosticsCommands(_session.settings, window);
    commands.on(Command::openEmptyWindow, [this] { openEmptyWindow(); });
    commands.on(Command::openFileInNewWindow, [this] { openFileInNewWindow(); });
    commands.on(Command::quit, [this] { quit(); });
    connect(&window.comparing(), &CompareCommands::windowWanted, this, &AppController::compareInNewWindow);
    connect(&window, &MainWindowController::temporaryFilesSaved, this,
            &AppController::processTemporaryFilesInNewWindow);
    connect(&window.project(), &WindowProject::newWindowWanted, this, &AppController::doWorkInNewWindow);
    connect(&window.project(), &WindowProject::stayed, this, [this] { _isQuitting = false; });
    commands.on(Command::openPreferences, [this] { openPreferences(); });
    commands.on(Command::openAcknowledgments, [this, &window] { openAcknowledgments(&window); });
    commands.on(Command::openAboutPanel, [this, &window] { openAboutPanel(&window); });
}

void AppController::windowClosed(MainWindowController *window)
{
    LiveSettings &settings = _session.settings;
    settings.set(Setting::lastTab, static_cast<int>(window->currentTab()));
    std::erase(_windows, window);
    const std::vector<FilelistItemPtr> &files = window->files().filelist();
    if (settings.boolean(Setting::reopenLastList)
        && (files.empty() || !_session.temporaryFolders.hold(files.front()->filename())))
        LastList::keep(files);
    if (_windows.empty()
        && (_isQuitting || !isReachable || settings.boolean(Setting::terminateAppWhenAllWindowsClosed)))
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

void AppController::overrideSettings(const QStringList &assignments)
{
    for (const QString &assignment : assignments) {
        if (const auto set = _session.settings.overrideFrom(assignment); !set)
            qCInfo(lcQuorvin).noquote() << "Failed to take a setting:" << set.error().description;
    }
}

void AppController::readAgain()
{
    for (MainWindowController *window : _windows)
        window->files().refreshAll();
}

void AppController::processTemporaryFilesInNewWindow(const QStringList &paths, const QString &fromFolder)
{
    _session.temporaryFolders.add(fromFolder);
    doWorkInNewWindow(paths);
}

void AppController::openFileInNewWindow()
{
    auto *dialog = new OpenDialog(nullptr, tr("Open in New Window"));
    startInLastFolder(*dialog, _session.settings);
    connect(dialog, &QFileDialog::filesSelected, this, &AppController::doWorkInNewWindow);
    dialog->open();
}

void AppController::restoreLastList()
{
    if (_windows.empty() || !_session.settings.boolean(Setting::reopenLastList))
        return;
    MainWindowController *window = _windows.front();
    runInBackground(
        window, "LastList",
        [](const RunControl &) {
            auto files = LastList::read(LastList::userPath());
            const QStringList folders = foldersOf(files);
            return std::pair(std::move(files), folders);
        },
        [window](const std::pair<std::vector<FilelistItemPtr>, QStringList> &last) {
            if (const auto &[files, folders] = last; window->isUntouched() && !files.empty())
                window->files().setFiles(files, folders);
        });
}

void AppController::openPreferences()
{
    if (!_preferences) {
        _preferences = new PreferencesWindowController(_session.settings);
        connect(_preferences, &PreferencesWindowController::readAgainWanted, this, &AppController::readAgain);
    }
    bringToFront(*_preferences);
}

void AppController::openAboutPanel(QWidget *parent)
{
    QMessageBox *panel
        = plainMessage(parent, tr("About Quorvin"), QStringLiteral("Quorvin %1").arg(programVersion()),
                       tr("Tells what media files are and what is inside them.\n\nFree software "
                          "under the GPL, version 3 or later.\n\nPlace names: GeoNames, CC BY 4.0; "
                          "map: Natural Earth."),
                       QMessageBox::Close);
    panel->setIconPixmap(QApplication::windowIcon().pixmap(64));
    panel->open();
}

void AppController::openAcknowledgments(QWidget *parent)
{
    const auto folder = _session.temporaryFolders.makeFolder(QStringLiteral("Acknowledgments"));
    const QString path = folder ? *folder + QLatin1String("/Acknowledgments.html") : QString();
    if (folder && QFile::copy(QStringLiteral(":/Acknowledgments.html"), path)
        && QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        return;
    const QString problem = folder ? tr("Nothing could be found that opens %1.").arg(path)
                                   : tr("The page could not be written: %1").arg(folder.error().description);
    plainMessage(parent, tr("Acknowledgments"), tr("The acknowledgments cannot be shown."), problem,
                 QMessageBox::Close)
        ->open();
}

void AppController::quit()
{
    _isQuitting = true;
    const std::vector<MainWindowController *> windows = _windows;
    for (MainWindowController *window : windows)
        window->close();
    if (_windows.empty())
        QApplication::quit();
}

void AppController::settingDidChange(Setting setting)
{
    const LiveSettings &settings = _session.settings;
    if (setting == Setting::colorScheme)
        _colorScheme.follow(settings.string(setting));
    else if (setting == Setting::reopenLastList && !settings.boolean(setting))
        LastList::forget();
    else if (auto *application = dynamic_cast<Application *>(QCoreApplication::instance());
             application && setting == Setting::debugStalls)
        application->setStallProbe(settings.boolean(setting));
}

} // namespace quorvin
