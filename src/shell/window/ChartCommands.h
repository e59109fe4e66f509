// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace quorvin {

class CommandSet;
class FilelistController;
class LiveSettings;
class MainView;
class MapWindow;
class StatWindow;

/// The windows of statistics and map of a window: opened by its commands, they belong to it and go with it.
/// Main thread.
class ChartCommands : public QObject {
    Q_OBJECT
public:
    /// All must outlive this object, which registers itself and belongs to `window`.
    ChartCommands(LiveSettings &settings, MainView &view, FilelistController &files, CommandSet &commands,
                  QWidget *window);

protected:
    /// They go when their window does.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openStatistics();
    void openMap();
    void showCurrentPlace();
    /// SECTION/NAME of the row that is selected on the tab that is looked at; "" without one.
    QString selectedParameter() const;

    LiveSettings &_settings;
    MainView &_view;
    FilelistController &_files;
    QWidget *_window;
    StatWindow *_statWindow = nullptr; ///< made when it is opened first, as the other
    MapWindow *_mapWindow = nullptr;
};

} // namespace quorvin
