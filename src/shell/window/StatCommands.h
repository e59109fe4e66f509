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
class StatWindow;

/// The statistics window of a window: opened by its commands, it belongs to it and goes with it. Main thread.
class StatCommands : public QObject {
    Q_OBJECT
public:
    /// All must outlive this object, which registers itself and belongs to `window`.
    StatCommands(LiveSettings &settings, MainView &view, FilelistController &files, CommandSet &commands,
                 QWidget *window);

protected:
    /// The statistics go when their window does.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void open();
    /// SECTION/NAME of the row that is selected on the tab that is looked at; "" without one.
    QString selectedParameter() const;

    LiveSettings &_settings;
    MainView &_view;
    FilelistController &_files;
    QWidget *_window;
    StatWindow *_statWindow = nullptr; ///< made when it is opened first
};

} // namespace quorvin
