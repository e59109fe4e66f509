// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace quorvin {

class CommandSet;
class ExportController;
class FilelistController;
class MainView;
struct CommandState;
struct ExportTask;

/// What a user does with the list and the files in it: pastes files, opens one with the desktop, exports all
/// or what is selected. What has come of it stands in the status line. Main thread.
class ListCommands : public QObject {
    Q_OBJECT
public:
    /// All must outlive this object.
    ListCommands(MainView &view, FilelistController &files, ExportController &exporting, QObject *parent);

    void registerAt(CommandSet &commands);
    /// Adds what can be exported.
    void describe(CommandState &state) const;

private:
    void paste();
    void open(const QString &path);
    void exportAll();
    void exportSelection();
    void tellOfExport(const ExportTask &task);

    MainView &_view;
    FilelistController &_files;
    ExportController &_export;
};

} // namespace quorvin
