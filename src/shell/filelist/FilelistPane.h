// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLineEdit;

namespace quorvin {

class FilelistController;
class FilelistTable;
class FilterStrip;

/// The list at the side of a window, and over it what narrows it: a field for names, there when it is asked
/// for, and the strip that tells of all filters. Main thread.
class FilelistPane : public QWidget {
    Q_OBJECT
public:
    /// `files` must outlive the pane, which takes the table over.
    FilelistPane(FilelistController &files, FilelistTable *table, QWidget *parent = nullptr);

    /// Shows the field for names and gives it the keyboard.
    void editNameFilter();
    /// What narrows the list, a phrase for each filter.
    QStringList filterTexts() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Escape, which the empty field for names passes on, puts it away.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showFilters();
    void showCounts();
    void updateFilenameSearch();

    FilelistController &_files;
    FilelistTable *_table;
    QWidget *_fieldRow; ///< the field, with air round it
    QLineEdit *_filenameSearchField;
    FilterStrip *_strip;
};

} // namespace quorvin
