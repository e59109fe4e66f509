// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportEntry.h"
#include "intake/FilelistTotals.h"
#include "model/Error.h"
#include "shell/filelist/ArrangedFilelist.h"
#include "shell/filelist/FileReading.h"
#include "shell/filelist/FilelistFiltering.h"
#include "shell/filelist/FilelistModel.h"
#include "shell/filelist/FilelistSelection.h"
#include "shell/filelist/FolderWalks.h"
#include "shell/filelist/RemovedFiles.h"
#include "shell/session/LiveSettings.h"

#include <functional>
#include <vector>

namespace quorvin {

/// The files of one window: the whole list and the arranged one, what is selected, the current file, the
/// walks that bring files, and what was removed. Files join and leave the whole list; all else goes
/// by the arranged list, and so do rows. A list that is not empty always has a current file. Main thread.
class FilelistController : public QObject {
    Q_OBJECT
public:
    /// As `FileReading`.
    explicit FilelistController(const LiveSettings &settings, QObject *parent = nullptr);
    /// Cancels the pool and the walks, without waiting.
    ~FilelistController() override;

    /// Folders are walked first, elsewhere. The files become the content.
    void processFiles(const QStringList &paths);
    /// The files join the list, at its end or in front of `index`, which is one of the whole list.
    void processAdditionalFiles(const QStringList &paths);
    void processAdditionalFilesAndSelectFirst(const QStringList &paths);
    void processAdditionalFilesAtIndex(const QStringList &paths, int index);

    /// These files, which lie in `roots`, become the content, with what is known of them; the rest is read.
    void setFiles(const std::vector<FilelistItemPtr> &files, const QStringList &roots)
    {
        replaceContent(files, roots);
    }

    /// All files, in the order in which they came.
    const std::vector<FilelistItemPtr> &filelist() const { return _whole.files(); }
    ArrangedFilelist &arranged() { return _arranged; }
    const ArrangedFilelist &arranged() const { return _arranged; }
    FilelistSelection &selection() { return _selection; }
    /// As `FilelistModel::setMarks`.
    void setMarks(const QHash<QString, QString> &marks) { _whole.setMarks(marks); }
    /// What narrows the arranged list.
    FilelistFiltering &filtering() { return _filter; }
    const WindowWorker &worker() const { return _reading.worker(); }
    FolderWalks &walks() { return _walks; }
    bool isWalking() const { return _walks.isUnderWay(); }
    /// What the window waits for to show it.
    CurrentFileWait &currentFileWait() { return _reading.wait(); }
    /// It has never been given files, or is empty again.
    bool isUntouched() const;

    /// As those of `selection`.
    int selectedRow() const { return _selection.selectedRow(); }
    std::vector<int> selectedRows() const { return _selection.rows(); }
    int selectedCount() const { return _selection.count(); }
    void selectRow(int row) { _selection.selectRow(row); }
    /// Makes the file of that row the current one; with -1 and an empty list, none.
    void showFileAtIndex(int row);

    /// Reads the selected files again, and those that were left unread.
    void refreshInfo();
    void refreshAll();
    /// What is read stays, the rest is unread.
    void stopReading();
    /// Reads what was left unread.
    void goOn();
    bool isReading() const { return _reading.isUnderWay(); }
    /// Changes the current file elsewhere and reads it again. `command` says what is done, should it fail;
    /// `change` is told the path.
    void changeCurrentFile(const QString &command,
                           const std::function<Expected<void>(const QString &)> &change);
    /// Reads files that were changed on the disk again; what is shown of the current one stays until then.
    void reprocessFiles(const std::vector<FilelistItemPtr> &files);
    /// Reads that file again, whatever is selected.
    void refreshFile(const FilelistItemPtr &file) { readAgain({file}); }
    /// Takes the selected files out of the list; nothing on the disk is touched.
    void removeSelectedItems();
    /// Takes that file alone out of it; what else is selected stays so.
    void removeFile(const FilelistItemPtr &file);
    /// Puts the files at these rows of the whole list in front of another; what is selected stays so.
    void moveFiles(const std::vector<int> &rows, int before) { _whole.moveFiles(rows, before); }
    /// The files that were removed last come back to their places, and are selected.
    void undoRemoval();
    bool canUndoRemoval() const { return !_removed.isEmpty(); }
    /// Selects the next file that could not be read, behind the end from the beginning.
    void selectNextFailed();

    /// Those of all arranged files.
    std::vector<ExportEntry> arrayWithDataForExport() const;
    /// The current file has a record.
    bool canExport() const;
    /// No file is on its way, and there are some.
    bool canExportAll() const;
    /// Where all files were recorded that tell.
    std::vector<MapLocationInfo> allMapLocationInfo() const;
    /// Selects the file if it still stands where it stood.
    void selectFileByMapLocationInfo(const MapLocationInfo &info);

    ListTotals totals() { return _totals.totals(_reading.worker(), filelist(), _arranged.files()); }

    /// Cancels the pool and waits for its threads; nothing is told from now on.
    void setWindowIsClosing();

Q_SIGNALS:
    /// Files of these paths have become the content, or joined it.
    void filesTaken(const QStringList &paths);
    /// One signal for all that comes, goes or moves in one turn of the event loop.
    void windowArrangedFilelistDidChange();
    /// How many files there are, or how many of them are processed, has changed.
    void totalsDidChange();
    /// `stopReading` has left files unread, or none.
    void readingDidStop();
    /// The current file is another one, there is none any more, or it is read anew.
    void currentFileDidChange();
    /// The pool has answered for the current file; `isFresh`: with the result of a run that has just ended.
    void currentFileIsReady(bool isFresh);
    /// The change of a file has ended; "" when all went well, else a sentence that names command and file.
    void currentFileWasChanged(const QString &problem);
    /// What commands go by may have changed.
    void stateDidChange();

private:
    void takeFiles(const FolderWalks::Request &request, const std::vector<FilelistItemPtr> &files);
    void replaceContent(const std::vector<FilelistItemPtr> &files, const QStringList &roots);
    void insertFiles(int index, const std::vector<FilelistItemPtr> &files);
    void arrange();
    void arrangedObjectsDidChange();
    void tellOfChange();
    void selectionDidChange();
    void fileIsReady(const DataCacherDelivery &delivery);
    void readAgain(const std::vector<FilelistItemPtr> &files);
    void reprocess(const FilelistItemPtr &file);
    /// The files of these rows of the whole list, which ascend.
    void takeOut(std::vector<int> rows);
    void updateTotals();

    FileReading _reading;
    FilelistModel _whole;
    ArrangedFilelist _arranged{_whole};
    FilelistSelection _selection{_arranged};
    FilelistFiltering _filter{_whole};
    FilelistTotals _totals;
    FolderWalks _walks;
    RemovedFiles _removed;
    bool _isArranging = false; ///< rows come and go, and nobody is to lean on them
    bool _isChangeToBeTold = false; ///< of the arranged list
    bool _isWindowClosing = false;
};

/// An entry for each of these files that has a record.
std::vector<ExportEntry> exportEntriesOf(const std::vector<FilelistItemPtr> &files);

} // namespace quorvin
