// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/app/AppController.h"

#include "model/Version.h"
#include "shell/app/Application.h"
#include "shell/preferences/PreferencesWindowController.h"
#include "shell/window/MainWindowController.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QUrl>

#include <algorithm>

namespace quorvin {

namespace {

constexpr qsizetype kMostRecentFiles = 12;

void bringToFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

AppController::AppController(Settings &settings)
    : _settings(settings), _service(new ApplicationService(*this, this))
{
    QApplication::setQuitOnLastWindowClosed(false);
    applyApplicationSettings();
}

AppController::~AppController()
{
    while (!_windows.empty())
        _windows.back()->close();
}

MainWindowController *AppController::openEmptyWindow()
{
    const int openTab = _settings.integer(Setting::openTab);
    auto *window = new MainWindowController(*this);
    _windows.push_back(window);
    window->setCurrentTab(openTab != 0 ? openTab - 1 : _settings.integer(Setting::lastTab));
    window->show();
    window->activateWindow();
    return window;
}

void AppController::windowClosed(MainWindowController *window)
{
    _settings.set(Setting::lastTab, window->currentTab());
    std::erase(_windows, window);
    if (_windows.empty() && (!isReachable || _settings.boolean(Setting::terminateAppWhenAllWindowsClosed)))
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
    _temporaryFolders.add(fromFolder);
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

QStringList AppController::recentFiles() const
{
    QStringList paths;
    const auto stored = QJsonDocument::fromJson(_settings.string(Setting::recentFiles).toUtf8()).array();
    for (const auto &path : stored)
        paths.append(path.toString());
    return paths;
}

void AppController::noteRecentFiles(const QStringList &paths)
{
    QStringList all = paths + recentFiles();
    all.removeDuplicates();
    const QJsonArray kept = QJsonArray::fromStringList(all.mid(0, kMostRecentFiles));
    setSetting(Setting::recentFiles, QString::fromUtf8(QJsonDocument(kept).toJson(QJsonDocument::Compact)));
}

void AppController::clearRecentFiles()
{
    setSetting(Setting::recentFiles, QString());
}

void AppController::openPreferences()
{
    PreferencesWindowController::controller(*this)->show();
}

void AppController::openAboutPanel(QWidget *parent)
{
    auto *panel = new QMessageBox(parent);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(tr("About Quorvin"));
    panel->setIconPixmap(QApplication::windowIcon().pixmap(64));
    panel->setText(QStringLiteral("<h3>Quorvin</h3>%1").arg(programVersion().toHtmlEscaped()));
    panel->setInformativeText(tr("Tells what media files are and what is inside them.\n\nFree software under "
                                 "the GPL, version 3 or later."));
    panel->setStandardButtons(QMessageBox::Close);
    panel->open();
}

void AppController::openAcknowledgments()
{
    const auto folder = _temporaryFolders.makeFolder(QStringLiteral("Acknowledgments"));
    const QString path = folder.value_or(QString()) + QLatin1String("/Acknowledgments.html");
    if (folder && QFile::copy(QStringLiteral(":/Acknowledgments.html"), path))
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void AppController::quit()
{
    while (!_windows.empty())
        _windows.back()->close();
    QApplication::quit();
}

void AppController::setSetting(Setting setting, const QVariant &value)
{
    _settings.set(setting, value);
    applyApplicationSettings();
    Q_EMIT settingDidChange(setting);
}

void AppController::applyApplicationSettings()
{
    _colorScheme.follow(_settings.string(Setting::colorScheme));
    if (auto *application = dynamic_cast<Application *>(QCoreApplication::instance()))
        application->setStallProbe(_settings.boolean(Setting::debugStalls));
}

} // namespace quorvin
