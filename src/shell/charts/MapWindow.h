// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/MapArea.h"
#include "shell/charts/LocatedFilesWatch.h"
#include "shell/desktop/TownLookup.h"

#include <QTimer>
#include <QWidget>

#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTableView;

namespace quorvin {

class FilelistController;
class LiveSettings;
class MapCanvas;
class MapMenu;
class MapModel;

/// The files of a window's list on a map, in a window beside it that follows the list, with a table of them.
/// Main thread.
class MapWindow final : public QWidget {
    Q_OBJECT
public:
    /// Belongs to `window`. The others must outlive this window.
    MapWindow(FilelistController &files, LiveSettings &settings, QWidget *window);

    /// Has it in the middle.
    void showLocation(const Location &location);

    MapCanvas &canvas() { return *_canvas; }
    QTableView &table() { return *_table; }

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Files = std::vector<FilelistItemPtr>;

    void layOut();
    QWidget *makeControls();
    QWidget *makeCounts();
    QPushButton *makeCount(const Files LocatedFiles::*files);
    void connectParts();
    void connectTable();
    void setType(int type);
    void showFiles(const LocatedFilesPtr &files);
    void showCounts();
    void showCurrent();
    /// What the keyboard or the pointer is at.
    void showReached(const std::vector<quint32> &places);
    Files filesAt(const std::vector<quint32> &places) const;
    std::vector<quint32> selectedRows() const;
    void choose(const Files &files, bool adds);
    void chooseRows(bool adds);
    /// The list is narrowed to what is in view, or not.
    void applyArea();
    void criteriaDidChange();

    struct Count {
        QPushButton *button;
        const Files LocatedFiles::*files;
    };

    FilelistController &_files;
    LiveSettings &_settings;
    TownLookup _towns{this};
    LocatedFilesWatch _watch;
    QTimer _areaTimer; ///< the map is being moved
    MapCanvas *_canvas;
    MapModel *_model;
    MapMenu *_menu;
    QTableView *_table;
    QComboBox *_type;
    QCheckBox *_onlyInView;
    QLabel *_note;
    std::vector<Count> _counts;
    LocatedFilesPtr _located; ///< null before the first
};

} // namespace quorvin
