// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Settings.h"
#include "shell/app/ApplicationService.h"
#include "shell/desktop/ColorScheme.h"
#include "shell/session/TemporaryFolders.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace quorvin {

class MainWindowController;

/// The one object that lives for the whole run: the settings, the open windows and the temporary folders, and
/// what other starts of the program ask for. Main thread.
class AppController : public QObject, public OpenRequests {
    Q_OBJECT
public:
    /// `settings` must outlive this object.
    explicit AppController(Settings &settings);
    /// Closes the windows.
    ~AppController() override;

    Settings &settings() { return _settings; }
    TemporaryFolders &temporaryFolders() { return _temporaryFolders; }
    ApplicationService &service() { return *_service; }

    /// Oldest first.
    const std::vector<MainWindowController *> &windows() const { return _windows; }
    MainWindowController *openEmptyWindow();
    void openFileInNewWindow() const;
    /// A window that closes tells so: its tab is that of the next one.
    void windowClosed(MainWindowController *window);

    void activate() override;
    /// The front window takes them if it has never been given files, else a new one. While another program is
    /// in front, so does the newest window that is untouched.
    void applicationOpenFiles(const QStringList &paths) override;
    void doWorkInNewWindow(const QStringList &paths) override;
    void processTemporaryFilesInNewWindow(const QStringList &paths, const QString &fromFolder);

    /// Newest first; kept over runs.
    QStringList recentFiles() const;
    void noteRecentFiles(const QStringList &paths);
    void clearRecentFiles();

    void openPreferences();
    void openAboutPanel(QWidget *parent);
    /// What Quorvin is built upon, in the desktop's browser.
    void openAcknowledgments();
    void quit();

    /// Whether a later start can reach this run; without, the last window takes the run with it.
    bool isReachable = false;

    /// Tells the windows, and what the application itself goes by.
    void setSetting(Setting setting, const QVariant &value);

    /// The window of a drag of list rows that is under way, or was interrupted; null when there is none.
    QPointer<QWidget> draggingSourceWindow;

Q_SIGNALS:
    void settingDidChange(quorvin::Setting setting);

private:
    MainWindowController *windowForOpenRequest() const;
    void applyApplicationSettings();

    Settings &_settings;
    TemporaryFolders _temporaryFolders;
    ColorScheme _colorScheme;
    ApplicationService *_service;
    std::vector<MainWindowController *> _windows;
};

} // namespace quorvin
