// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "shell/desktop/BackgroundRun.h"

#include <QObject>

namespace quorvin {

class FilelistController;
class MainView;

/// Walks hits from one file to the next that has one. The files are looked through elsewhere, in the order of
/// the list and behind its end from its beginning. Main thread.
class FindCommands : public QObject {
    Q_OBJECT
public:
    /// Both must outlive this object.
    FindCommands(MainView &view, FilelistController &files, QObject *parent);

    /// Goes to the next file of the list whose parameters have the text of Extended, and to the first of them
    /// there; backwards to the file before and to its last one. The current file comes last.
    void goToOtherFile(bool backwards);

private:
    void goTo(const FilelistItemPtr &file, const QString &text, bool backwards);

    MainView &_view;
    FilelistController &_files;
    BackgroundRun<FilelistItemPtr> _search{this}; ///< gives null when no file has the text
};

} // namespace quorvin
