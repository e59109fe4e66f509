// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportEntry.h"
#include "intake/FilelistTotals.h"
#include "intake/WindowWorker.h"
#include "model/Error.h"
#include "shell/filelist/FilelistModel.h"
#include "shell/filelist/FolderWalks.h"

#include <QTimer>
#include <QWidget>

#include <functional>

namespace quorvin {

class FilelistTable;
class InfoView;
class SidebarSplitView;
class StatusLine;
struct Session;

/// The inside of a window: its list of files and what is shown of the current one. Feeds the window's pool
/// and takes its deliveries. Main thread.
class MainView : public QWidget, public DataCacherDelegate {
    Q_OBJECT
public:
    /// Both must outlive the view.
    MainView(Session &session, WindowWorker &worker, QWidget *parent = nullptr);
    /// Cancels the pool, without waiting.
    ~MainView() override;

    /// Folders are walked first, elsewhere. The files become the window's content.
    void processFiles(const QStringList &paths);
    /// The files join the list, at its end or in front of `index`.
    void processAdditionalFiles(const QStringList &paths);
    void processAdditionalFilesAndSelectFirst(const QStringList &paths);
    void processAdditionalFilesAtIndex(const QStringList &paths, int index);

    /// All files of the window, in the order in which they came; the model has those that are shown.
    const std::vector<FilelistItemPtr> &filelist() const { return _filelist; }
    const FilelistModel &arranged() const { return _arranged; }
    FilelistTable &table() { return *_table; }
    InfoView &info() { return *_info; }
    SidebarSplitView &sidebar() { return *_sidebar; }
    StatusLine &statusLine() { return *_status; }
    bool isWalking() const { return _walks.isUnderWay(); }

    /// An entry for each file of the list that has a record, in the order of the list.
    std::vector<ExportEntry> arrayWithDataForExport() const;
    /// The current file has a record.
    bool canExport() const;
    /// All files are done, and there are some.
    bool canExportAll() const;

    /// Shows the arranged file at that place; with -1 and an empty list, nothing.
    void showFileAtIndex(int index);
    /// Reads the selected files again.
    void refreshInfo();
    /// Changes the current file elsewhere and reads it again. `change` is told its path, and gives what went
    /// wrong.
    void changeCurrentFile(const std::function<Expected<void>(const QString &)> &change);
    /// Takes the selected files out of the list; nothing on the disk is touched.
    void removeSelectedItems();
    void copyGeneralInfo() const;
    /// Where all files of the list were recorded that tell.
    std::vector<MapLocationInfo> allMapLocationInfo() const;
    /// Selects the file if it still stands where it stood.
    void selectFileByMapLocationInfo(const MapLocationInfo &info);

    void dataCacherNewObjectReady(const DataCacherDelivery &delivery) override;
    /// Cancels the pool and waits for its threads; nothing is shown from now on.
    void setWindowIsClosing();

Q_SIGNALS:
    /// The current file changed, or its record arrived.
    void workerFileDidChange();
    void windowArrangedFilelistDidChange();
    /// What commands go by may have changed.
    void stateDidChange();

private:
    void takeFiles(const FolderWalks::Request &request, const std::vector<FilelistItemPtr> &files);
    void replaceContent(const std::vector<FilelistItemPtr> &files);
    void insertFiles(int index, const std::vector<FilelistItemPtr> &files);
    void startPool();
    void arrangedObjectsDidChange();
    void showCurrentRecord();
    void reprocess(const FilelistItemPtr &file);
    void startDelayedWorkingAnimation(const FilelistItemPtr &file);
    void updateTotals();

    Session &_session;
    WindowWorker &_worker;
    FilelistModel _arranged;
    std::vector<FilelistItemPtr> _filelist;
    FilelistTotals _totals;
    FolderWalks _walks;
    FilelistTable *_table;
    InfoView *_info;
    SidebarSplitView *_sidebar;
    StatusLine *_status;
    QTimer _totalsTimer;
    bool _isWindowClosing = false;
};

} // namespace quorvin
