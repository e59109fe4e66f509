// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "model/Error.h"
#include "shell/desktop/BackgroundRun.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace quorvin {

class LiveSettings;

/// The located ones among these files, to be written. Those without a record, without a location or with an
/// impossible one are left out.
struct PlacesDocument {
    QString format; ///< one of `placeFormats`
    std::vector<FilelistItemPtr> files;
    bool skipPrivate = false; ///< without names and paths
};

/// Writes the document, whole or not at all, as when it is stopped. Tells how many of the files are done. Any
/// thread.
Expected<void> writePlaces(const QString &path, const PlacesDocument &document, const RunControl &control);

/// Writes where files were recorded, or a picture of the map, to a place that the user is asked for. A run
/// that is cancelled leaves nothing. Main thread.
class MapExport : public QObject {
    Q_OBJECT
public:
    /// `settings` must outlive this object, which belongs to `window`.
    MapExport(LiveSettings &settings, QWidget *window);

    void exportPlaces(const PlacesDocument &document);
    /// As PNG.
    void exportPicture(const QImage &picture);

    /// The export that is under way.
    BackgroundRunBase &run() { return _run; }

Q_SIGNALS:
    void exported(const QString &path);

private:
    void start(const QString &path, std::function<Expected<void>(const RunControl &)> work);

    LiveSettings &_settings;
    QWidget *_window;
    BackgroundRun<Expected<void>> _run{this};
};

} // namespace quorvin
