// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/charts/MapExport.h"

#include <QWidget>

class QAction;
class QPushButton;

namespace quorvin {

class MapCanvas;

/// The button that exports what a map shows, and how far an export is. Main thread.
class MapExportBar final : public QWidget {
    Q_OBJECT
public:
    /// Belongs to `window`. `settings` and `canvas` must outlive it.
    MapExportBar(MapCanvas &canvas, LiveSettings &settings, QWidget *window);

    MapExport &exporter() { return *_export; }

Q_SIGNALS:
    /// What is to be said of an export; "" for nothing.
    void said(const QString &text);

private:
    void addFormats();
    void followRun();

    MapCanvas &_canvas;
    MapExport *_export;
    QPushButton *_button;
    QPushButton *_stop; ///< there while an export takes its time
    QAction *_skipsPrivate = nullptr;
};

} // namespace quorvin
