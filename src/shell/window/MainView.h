// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistFiller.h"

#include <QTimer>
#include <QWidget>

#include <vector>

namespace quorvin {

class FilelistController;
class FilelistPane;
class FilelistTable;
class InfoView;
class LiveSettings;
class SelectionSum;
class SidebarSplitView;
class StatusLine;

/// The inside of a window: the list at its side, what is known of the current file, and the line below. Shows
/// what the list's controller tells. Main thread.
class MainView : public QWidget {
    Q_OBJECT
public:
    /// Both must outlive the view.
    MainView(LiveSettings &settings, FilelistController &files, QWidget *parent = nullptr);

    FilelistTable &table() { return *_table; }
    FilelistPane &list() { return *_list; }
    InfoView &info() { return *_info; }
    SidebarSplitView &sidebar() { return *_sidebar; }
    StatusLine &statusLine() { return *_status; }

private:
    void layOut();
    void connectFiles();
    void connectWalks();
    void showCurrentFile();
    void showCurrentResult();
    void showNoFile();
    void showWait();
    void tellWalk(const QStringList &paths, std::size_t files,
                  const std::vector<FilelistFiller::Problem> &problems);
    void tellStop();
    void showTotals();

    FilelistController &_files;
    FilelistTable *_table;
    FilelistPane *_list; ///< the table, and what stands over it
    InfoView *_info;
    SidebarSplitView *_sidebar;
    StatusLine *_status;
    SelectionSum *_sum;
    QTimer _walkDelay; ///< a short walk never flashes
};

} // namespace quorvin
