// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Settings.h"
#include "shell/commands/Command.h"
#include "shell/filelist/FilelistController.h"

#include <QMainWindow>

#include <optional>

namespace quorvin {

class CommandSet;
class CompareCommands;
struct ComparisonRow;
class ExportController;
class DropHint;
class FileCommands;
class FilelistDrags;
class FilterCommands;
class ListCommands;
class MainView;
class OpenWithMenu;
class QuickInfo;
class TabSidebars;
class WindowFrame;
class WindowProject;
struct Session;

/// One window: its tabs, tool bar, drop target, commands, title and closing. Main thread.
class MainWindowController : public QMainWindow {
    Q_OBJECT
public:
    /// `session` must outlive the window. The window goes when it is closed.
    explicit MainWindowController(Session &session);
    ~MainWindowController() override;

    Tab currentTab() const;
    /// The Comparison tab has a sidebar state of its own.
    void setCurrentTab(Tab tab);

    MainView &myView() { return *_view; }
    FilelistController &files() { return _files; }
    const WindowWorker &worker() const { return _files.worker(); }
    /// Rows that are dragged from this window, and what is dropped on it.
    FilelistDrags &drags() { return *_drags; }
    CommandSet &commands() { return *_commands; }
    ExportController &exporting() { return *_export; }
    CompareCommands &comparing() { return *_compare; }
    /// It has never been given files, or is empty again.
    bool isUntouched() const;
    /// The project that the window belongs to.
    WindowProject &project() { return *_project; }

    /// For a window that is not shown yet: beside that one, and on its screen.
    void placeBeside(const QWidget &before);
    /// Replaces the content by these files and folders, or by a project, once the caller has returned and
    /// changes of the window's project are saved or not wanted.
    void processUrls(const QStringList &paths);

    std::optional<MapLocationInfo> mapLocationInfo() const { return worker().currentMapLocationInfo(); }
    /// The selected row of the comparison, the first of several, while that is looked at; null else. It lasts
    /// until the comparison changes.
    const ComparisonRow *comparisonSelectionInfo() const;
    CommandState commandState() const;

Q_SIGNALS:
    /// Once, before it goes.
    void closed(quorvin::MainWindowController *window);
    /// Files of this run, which lie in that folder, are to be shown in a window of their own.
    void temporaryFilesSaved(const QStringList &paths, const QString &folder);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// Which pane the keyboard belongs to, and what Copy has there.
    struct Keyboard {
        bool isInList = false;
        bool canCopy = false;
    };

    void setUpCommands();
    void connectView();
    void connectExport();
    void validateCommands();
    void updateWindowTitle();
    void answerDrop(QDropEvent &event) const;
    void windowWillClose();

    void registerCommands();
    void copy();
    void showMenu(CommandPlace place, const QPoint &globalPosition);

    Session &_session;
    FilelistController _files;
    MainView *_view;
    TabSidebars *_sidebars;
    CommandSet *_commands;
    FileCommands *_fileCommands;
    OpenWithMenu *_openWith = nullptr;
    QuickInfo *_quickInfo;
    ExportController *_export;
    ListCommands *_listCommands;
    CompareCommands *_compare;
    WindowProject *_project;
    FilterCommands *_filterCommands;
    FilelistDrags *_drags;
    DropHint *_dropHint;
    WindowFrame *_frame;
    Keyboard _keyboard;
    bool _wasShown = false;
    bool _isClosed = false;
};

} // namespace quorvin
