// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/WindowWorker.h"
#include "platform/Settings.h"
#include "shell/commands/Commands.h"

#include <QMainWindow>

#include <optional>

class QMenu;

namespace quorvin {

class AppController;
class CommandSet;
class ExportController;
class MainView;

/// One window: its tabs, tool bar, drop target, commands, title and closing. Main thread.
class MainWindowController : public QMainWindow {
    Q_OBJECT
public:
    /// `application` must outlive the window. The window goes when it is closed.
    explicit MainWindowController(AppController &application);
    ~MainWindowController() override;

    int currentTab() const;
    /// A number that is no tab is the first one. The Comparison tab has a sidebar state of its own.
    void setCurrentTab(int tab);

    MainView &myView() { return *_view; }
    const WindowWorker &worker() const { return _worker; }
    CommandSet &commands() { return *_commands; }
    ExportController &exporting() { return *_export; }
    /// It has never been given files, or is empty again.
    bool isUntouched() const;

    /// Replaces the content by these files and folders, once the caller has returned.
    void processUrls(const QStringList &paths);

    std::optional<MapLocationInfo> mapLocationInfo() const { return _worker.currentMapLocationInfo(); }
    CommandState commandState() const;
    /// Does nothing for a command that is disabled.
    void run(Command command);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setUpMenus();
    void setUpToolBar();
    void connectView();
    void connectExport();
    void restoreFrame();
    void fillRecentMenu(QMenu *menu);
    void validateCommands();
    void updateWindowTitle();
    void settingDidChange(Setting setting);
    void windowWillClose();

    void chooseFiles(const QString &title, bool adds);
    void openDirectory();
    void toggleSidebar();
    void revealInFinder();
    void removeExtendedAttribute();
    void touchDate();
    void copy();
    void showMenu(CommandPlace place, const QPoint &globalPosition);

    AppController &_application;
    WindowWorker _worker;
    MainView *_view;
    CommandSet *_commands;
    ExportController *_export;
    bool _openSidebar = true; ///< wanted on all tabs but Comparison
    bool _openSidebarForComparison = false;
    bool _wasShown = false;
    bool _isClosed = false;
};

} // namespace quorvin
