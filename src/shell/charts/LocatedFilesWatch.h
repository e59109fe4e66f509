// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/charts/LocatedFiles.h"
#include "shell/desktop/BackgroundRun.h"

#include <QObject>
#include <QTimer>

namespace quorvin {

class FilelistController;

/// Gathers where the files of a window's list were recorded, again and again as the list changes, in the
/// background: those that every filter lets pass but that of the map itself. Main thread.
class LocatedFilesWatch : public QObject {
    Q_OBJECT
public:
    /// `files` must outlive this object. Nothing is gathered while it is not active.
    LocatedFilesWatch(FilelistController &files, QObject *parent);

    void setActive(bool isActive);
    /// What the points are for.
    void setType(MapType type);

Q_SIGNALS:
    void located(const quorvin::LocatedFilesPtr &files);

private:
    void filesDidChange();
    void gather();

    FilelistController &_files;
    BackgroundRun<LocatedFilesPtr> _run{this};
    QTimer _timer; ///< files come one by one
    MapType _type = MapType::WebMercator;
    bool _isActive = false;
};

} // namespace quorvin
