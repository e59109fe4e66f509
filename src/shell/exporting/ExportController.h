// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/exporting/ExportTask.h"

#include <QObject>

class QWidget;

namespace quorvin {

class ExportSheet;
class LiveSettings;

/// Takes the files of a window through an export: the sheet, the place, and what could not be written. Main
/// thread.
class ExportController : public QObject {
    Q_OBJECT
public:
    /// Both must outlive this object.
    ExportController(LiveSettings &settings, QWidget *window);

    /// Shows the sheet for these files; `asked` is how many were meant, of which those without a record are
    /// left out.
    void menuExportNew(std::vector<ExportEntry> entries, std::size_t asked);
    /// The export that is under way, which ends with the window.
    BackgroundRunBase &run() { return _run; }

Q_SIGNALS:
    /// All of it is written.
    void exported(const quorvin::ExportTask &task);

private:
    void choosePlace(const ExportSheet &sheet);
    void chooseFile(ExportTask task);
    void chooseFolder(ExportTask task);
    void start(ExportTask task);
    void tellFailures(const QStringList &failures);

    LiveSettings &_settings;
    QWidget *_window;
    std::vector<ExportEntry> _entries; ///< of the sheet that is open
    BackgroundRun<QStringList> _run;
};

} // namespace quorvin
