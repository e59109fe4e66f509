// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QStringList>

class QMenu;
class QWidget;

namespace quorvin {

class CommandSet;
class LiveSettings;
class RecentFiles;
struct Session;

/// The panels, and the menu of recent files, through which a user brings files to a window. Main thread.
class OpenPanels : public QObject {
    Q_OBJECT
public:
    /// Belongs to the window. `session` must outlive this object.
    OpenPanels(Session &session, QWidget *window);

    /// The commands that open a panel, and the menu of recent files above the command that adds files.
    void registerAt(CommandSet &commands);

Q_SIGNALS:
    /// They are to become the content of the window, or to join it.
    void chosen(const QStringList &paths);
    void chosenToAdd(const QStringList &paths);

private:
    void chooseFiles(const QString &title, void (OpenPanels::*done)(const QStringList &));
    void chooseFolder(const QString &title, void (OpenPanels::*done)(const QStringList &));
    void fillRecentMenu(QMenu *menu);

    LiveSettings &_settings;
    RecentFiles &_recentFiles;
    QWidget *_window;
};

} // namespace quorvin
