// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "shell/desktop/BackgroundRun.h"

#include <QObject>

namespace quorvin {

class LiveSettings;
class MainWindowController;
struct CopiedReport;

/// The Diagnostics menu of a window, which is there while the setting `enableDebug` is on: what the sources
/// of the facts say of the current file themselves, copied or on the Custom tab. One report is asked for at a
/// time. Main thread.
class DiagnosticsCommands : public QObject {
    Q_OBJECT
public:
    /// Belongs to the window. `settings` must outlive this object, and their values the program's threads.
    DiagnosticsCommands(LiveSettings &settings, MainWindowController &window);

private:
    void registerCommands();
    void followSetting();
    /// `path` is "" for a report on no file.
    void copyReport(const CopiedReport &report, const QString &path);
    void take(const CopiedReport &kind, const QString &path, const Expected<QString> &report);
    void showReport(const QString &source);
    void chooseForExiv2();
    void saveParameters();
    void saveParametersTo(const QString &path);
    void exchangeViews();
    void say(const QString &text);

    LiveSettings &_settings;
    MainWindowController &_window;
    BackgroundRun<Expected<QString>> _run{this};
    BackgroundRun<Expected<void>> _saving{this};
};

} // namespace quorvin
