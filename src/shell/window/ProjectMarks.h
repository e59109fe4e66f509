// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "projects/ProjectChanges.h"
#include "shell/desktop/BackgroundRun.h"

#include <QHash>
#include <QObject>

namespace quorvin {

class CommandSet;
class FilelistController;
class MainView;
class WindowProject;

/// Tells in a window what has changed since its project was saved: when it is opened, by size and date, and
/// on command by the digests, too. Rows have marks, and the status line has the counts. Main thread.
class ProjectMarks : public QObject {
    Q_OBJECT
public:
    /// Belongs to the project. The others must outlive this object.
    ProjectMarks(WindowProject &project, MainView &view, FilelistController &files, CommandSet &commands);

private:
    void check(DigestCheck digests);
    void take(const ProjectChanges &found, DigestCheck digests);

    WindowProject &_project;
    MainView &_view;
    FilelistController &_files;
    BackgroundRun<ProjectChanges> _checking{this};
};

/// What has changed of a file, for people: "Changed since the project was saved: size, date".
QString markText(const FileChange &change);
/// How many files have changed, vanished and come; "" when none has.
QString changesText(const std::vector<FileChange> &changes);

} // namespace quorvin
