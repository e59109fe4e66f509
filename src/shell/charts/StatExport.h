// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/desktop/BackgroundRun.h"
#include "statistics/CountTable.h"

#include <QByteArray>
#include <QObject>
#include <QString>

class QWidget;

namespace quorvin {

class CountPlot;
class LiveSettings;

/// Writes a count as CSV, or its plot as a picture or a page, to a place that the user is asked for.
/// Main thread.
class StatExport : public QObject {
    Q_OBJECT
public:
    enum class Kind { Csv, Png, Pdf };

    /// `settings` must outlive this object, which belongs to `window`.
    StatExport(LiveSettings &settings, QWidget *window);

    void exportCount(Kind kind, const CountTablePtr &table, const CountPlot &plot);
    /// The document of that kind, which appears at the path when it is complete.
    void write(const QString &path, Kind kind, const CountTablePtr &table, const CountPlot &plot);

Q_SIGNALS:
    void exported(const QString &path);

private:
    LiveSettings &_settings;
    QWidget *_window;
    BackgroundRun<QString> _run{this};
};

} // namespace quorvin
