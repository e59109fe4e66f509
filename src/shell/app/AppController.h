// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "comparison/ComparisonFilter.h"
#include "intake/FilelistItem.h"
#include "shell/app/ApplicationService.h"
#include "shell/desktop/ColorScheme.h"
#include "shell/preview/PreviewPanel.h"
#include "shell/session/Session.h"

#include <QObject>
#include <QPointer>

#include <optional>
#include <vector>

namespace quorvin {

class MainWindowController;
class PreferencesWindowController;

/// The one object that lives for the whole run: what windows share, the open windows, and what other starts
/// of the program ask for. Main thread.
class AppController : public QObject, public OpenRequests {
    Q_OBJECT
public:
    /// `settings` must outlive this object.
    explicit AppController(Settings &settings);
    /// Closes the windows.
    ~AppController() override;

    Session &session() { return _session; }
    ApplicationService &service() { return *_service; }
    PreviewPanel &preview() { return _preview; }

    /// Oldest first.
    const std::vector<MainWindowController *> &windows() const { return _windows; }
    MainWindowController *openEmptyWindow();
    /// A window with these files and what is known of them, on the Comparison tab; with that filter, or with
    /// the one that was chosen last.
    MainWindowController *compareInNewWindow(const std::vector<FilelistItemPtr> &files,
                                             std::optional<ComparisonFilter> filter);
    void openFileInNewWindow();
    /// The files that the last window of an earlier run held come into the oldest window, if that is wanted
    /// and nothing has come into it until they are there.
    void restoreLastList();

    void activate() override;
    /// The front window takes them if it has never been given files, else a new one. While another program is
    /// in front, so does the newest window that is untouched.
    void applicationOpenFiles(const QStringList &paths) override;
    void doWorkInNewWindow(const QStringList &paths) override;
    void overrideSettings(const QStringList &assignments) override;
    void processTemporaryFilesInNewWindow(const QStringList &paths, const QString &fromFolder);

    void openPreferences();
    void openAboutPanel(QWidget *parent);
    /// What Quorvin is built upon, in the desktop's browser.
    void openAcknowledgments(QWidget *parent);
    /// Closes all windows and ends, unless a user who is asked wants to stay.
    void quit();

    /// Whether a later start can reach this run; without, the last window takes the run with it.
    bool isReachable = false;

private:
    MainWindowController *windowForOpenRequest() const;
    /// What a window cannot do for itself.
    void registerCommands(MainWindowController &window);
    /// The tab of a window that closes is that of the next one, and its files may be, in a later run.
    void windowClosed(MainWindowController *window);
    void readAgain();
    void settingDidChange(Setting setting);

    Session _session;
    PreviewPanel _preview{_session.settings};
    QPointer<PreferencesWindowController> _preferences;
    ColorScheme _colorScheme;
    ApplicationService *_service;
    std::vector<MainWindowController *> _windows;
    bool _isQuitting = false; ///< the program ends with the last window
};

} // namespace quorvin
