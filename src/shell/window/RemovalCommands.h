// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace quorvin {

class CommandSet;
class FilelistController;
class LiveSettings;
class MainView;
class RemovalController;

/// The commands that take metadata out of the images of the list, which are read again afterwards. Main
/// thread.
class RemovalCommands : public QObject {
    Q_OBJECT
public:
    /// Belongs to the window. The others must outlive this object.
    RemovalCommands(LiveSettings &settings, MainView &view, FilelistController &files, CommandSet &commands,
                    QWidget *window);

private:
    FilelistController &_files;
    RemovalController *_removal;
};

} // namespace quorvin
