// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "comparison/ComparisonController.h"
#include "platform/Settings.h"
#include "shell/compare/ComparedFiles.h"
#include "shell/desktop/BackgroundRun.h"

#include <QWidget>

#include <vector>

namespace quorvin {

class CommandSet;
class ComparisonControls;
class ComparisonNote;
class ComparisonTable;
class FindBar;
class LiveSettings;
struct CommandState;
struct TableLook;

/// A row of a comparison, as the tree of a file knows it.
struct ComparedParameter {
    QString section; ///< key of the group
    quint32 stream = 0; ///< number of the stream
    QString key;
};

/// The comparison of the files of a window: the table with what stands over it. Rows are made elsewhere and
/// only while the view is looked at. Main thread.
class ComparisonView final : public QWidget {
    Q_OBJECT
public:
    /// `settings` must outlive the view.
    explicit ComparisonView(LiveSettings &settings, QWidget *parent = nullptr);

    /// The files of the window in their order, whatever is known of them.
    void setFiles(const std::vector<FilelistItemPtr> &files);
    const ComparisonController &content() const { return _content; }
    ComparisonTable &table() { return *_table; }
    bool isEmpty() const { return _content.contentDescription().isEmpty(); }

    /// The selected row, the first of several; null without one. It lasts until the content changes.
    const ComparisonRow *extComparisonSelectionInfo() const;

    void setLook(const TableLook &look);
    void setFilter(ComparisonFilter filter);
    ComparisonFilter filter() const;
    /// As `ComparedFiles` has them.
    QStringList columns(const std::vector<FilelistItemPtr> &files) const { return _compared.columns(files); }
    void setColumns(const std::vector<FilelistItemPtr> &files, const QStringList &paths);

    bool canCopy() const;
    /// The selected rows, as text and as an HTML table.
    void copy() const;
    void selectAll();
    void find();
    void findNext(bool backward);
    /// The current cell, as by a double click on it.
    void openCurrent();
    void describe(CommandState &state) const;
    void registerAt(CommandSet &commands);

Q_SIGNALS:
    /// Files may have come or gone unseen, or the limit is another one.
    void filesWanted();
    /// There is a comparison now, or none any more.
    void isEmptyDidChange();
    void selectionDidChange();
    void menuWanted(const QPoint &globalPosition);
    /// That parameter of that file is to be shown.
    void parameterWanted(const quorvin::FilelistItemPtr &file, const quorvin::ComparedParameter &parameter);
    void preferencesWanted();
    void exportWanted();

private:
    void layOut();
    void connectTable();
    void connectParts();
    void applySetting(Setting setting);
    void build();
    void show(ComparisonContent content, const QStringList &paths);
    void reorder(const std::vector<int> &order);
    void moveCurrentColumn(int step);
    void toggleReference(int file);
    void closeColumn(int file);
    void openCell(const QModelIndex &cell);
    void look(const QString &text);
    /// By its column; null beyond them.
    FilelistItemPtr fileAt(int file) const;

    LiveSettings &_settings;
    ComparisonController _content;
    ComparedFiles _compared;
    std::vector<ComparedFile> _shown; ///< by columns, as the content has them
    ComparisonControls *_controls;
    ComparisonNote *_note;
    FindBar *_findBar;
    ComparisonTable *_table;
    BackgroundRun<ComparisonContent> _building{this};
};

} // namespace quorvin
