// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"
#include "shell/charts/StatCounter.h"
#include "shell/charts/StatExport.h"

#include <QWidget>

#include <cstddef>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTableView;

namespace quorvin {

class CountModel;
class CountPlot;
class FilelistController;
class LiveSettings;
class ParameterChooser;
struct CountPreset;

/// The statistics of a window's list, in a window beside it that follows the list: a parameter to choose, a
/// sentence, a plot, and a table whose rows select their files in the list. Main thread.
class StatWindow final : public QWidget {
    Q_OBJECT
public:
    /// Belongs to `window`. The others must outlive this window.
    StatWindow(FilelistController &files, LiveSettings &settings, QWidget *window);

    /// SECTION/NAME.
    void showParameter(const QString &parameter);
    /// The user looks at that one elsewhere: it is shown if that is wanted.
    void follow(const QString &parameter);

    CountPlot &plot() { return *_plot; }
    QTableView &table() { return *_table; }

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layOut();
    QWidget *makeControls();
    QWidget *makeButtons();
    void connectParts();
    void connectTable();
    void choose(const QString &parameter, const CountPreset *preset);
    void applyView();
    void showCount(const CountTablePtr &table);
    void showControls(const CountTable &table);
    /// What the plot and the table do not tell.
    /// Says it below the table; "" says nothing.
    void tell(const QString &note);
    void showNote();
    std::vector<std::size_t> selectedRows() const;
    /// These rows are chosen: their files are selected in the list.
    void chooseRows(const std::vector<std::size_t> &rows, bool adds);
    void selectFiles(bool adds);
    void rowsDidChange();
    void showOnlyThese();
    void copy() const;

    FilelistController &_files;
    StatCounter *_counter;
    StatExport *_export;
    ParameterChooser *_chooser;
    QLabel *_headline;
    QComboBox *_layout;
    QComboBox *_steps;
    QCheckBox *_follows;
    CountPlot *_plot;
    CountModel *_model;
    QTableView *_table;
    QLabel *_note;
    QPushButton *_showOnly;
    QPushButton *_exportButton = nullptr;
};

} // namespace quorvin
