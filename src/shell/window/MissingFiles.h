// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/desktop/BackgroundRun.h"

#include <QHash>
#include <QObject>

#include <cstddef>

class QWidget;

namespace quorvin {

class CommandSet;
class FilelistController;
class LiveSettings;
class MainView;
class WindowProject;

/// Finds files of the list that are missing in a folder that the user chooses, and puts them into their
/// places. Main thread.
class MissingFiles : public QObject {
    Q_OBJECT
public:
    /// Belongs to the project of the window. The others must outlive this object.
    MissingFiles(WindowProject &project, LiveSettings &settings, MainView &view, FilelistController &files,
                 CommandSet &commands);

    /// Those that have failed and are missing are looked for in the folder and below it.
    void relinkFrom(const QString &folder);

private:
    struct Relinked {
        std::size_t sought = 0;
        QHash<QString, QString> found; ///< the new paths by the old ones
    };

    void choose();
    void take(const Relinked &relinked);

    WindowProject &_project;
    LiveSettings &_settings;
    MainView &_view;
    FilelistController &_files;
    BackgroundRun<Relinked> _search{this};
};

} // namespace quorvin
