// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "comparison/ComparisonFilter.h"
#include "intake/FilelistItem.h"

#include <QObject>
#include <QTimer>

#include <optional>
#include <vector>

namespace quorvin {

class CommandSet;
class ComparisonExportController;
class ComparisonView;
class FilelistController;
class LiveSettings;
class MainView;
struct CommandState;
struct ComparedParameter;

/// Brings the files of a window to its comparison, and what is asked of the comparison to the window: another
/// tab, another window, a document. Main thread.
class CompareCommands : public QObject {
    Q_OBJECT
public:
    /// All must outlive this object.
    CompareCommands(LiveSettings &settings, MainView &view, FilelistController &files, QWidget *window);

    void registerAt(CommandSet &commands);
    /// Adds what can be done with the comparison that is looked at.
    void describe(CommandState &state) const;

Q_SIGNALS:
    /// These files are to be compared in a window of their own, which takes over what is known of them; with
    /// a filter, or with the one that was chosen last.
    void windowWanted(const std::vector<quorvin::FilelistItemPtr> &files,
                      std::optional<quorvin::ComparisonFilter> filter);
    void extendedTabWanted();
    void stateDidChange();

private:
    ComparisonView &comparison() const;
    void filesDidChange();
    /// While it is looked at.
    void updateComparisonView();
    void showParameter(const FilelistItemPtr &file, const ComparedParameter &parameter);
    void exportComparison();
    void tellOfExport(const QString &path);
    std::vector<FilelistItemPtr> filesToCompare() const;

    MainView &_view;
    FilelistController &_files;
    ComparisonExportController *_export;
    QTimer _updateTimer; ///< files finish one by one
};

} // namespace quorvin
