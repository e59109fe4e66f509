// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "model/Location.h"

#include <QObject>

#include <vector>

class QMenu;
class QPoint;

namespace quorvin {

/// The menus of a map: of files on one spot, and of a place. Main thread.
class MapMenu : public QObject {
    Q_OBJECT
public:
    /// Belongs to `window`.
    explicit MapMenu(QWidget *window);

    /// The names of the files, to choose one or all.
    void openSpot(const std::vector<FilelistItemPtr> &files, const QPoint &where);
    /// What can be done with these files, if there are any, and with the place.
    void openPlace(const std::vector<FilelistItemPtr> &files, const Location &location, const QPoint &where);

Q_SIGNALS:
    void filesChosen(const std::vector<quorvin::FilelistItemPtr> &files);

private:
    QMenu *makeMenu();
    void addFiles(QMenu &menu, const QString &text, const std::vector<FilelistItemPtr> &files);

    QWidget *_window;
};

} // namespace quorvin
