// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"
#include "shell/commands/Tabs.h"

#include <QStackedWidget>
#include <QWidget>

#include <array>
#include <optional>

class QPushButton;

namespace quorvin {

class CommandSet;
class EmptyPane;
class ExtendedOutline;
class ExtendedPane;
class GeneralPane;
class LiveSettings;
class Pane;

/// The tabs of a window and what they show of the current file, in fonts and heights that follow the
/// settings. Main thread.
class InfoView : public QWidget {
    Q_OBJECT
public:
    /// `settings` must outlive the view.
    explicit InfoView(const LiveSettings &settings, QWidget *parent = nullptr);

    Tab currentTab() const { return _tab; }
    void setCurrentTab(Tab tab);

    /// The window has no file.
    void showNoFile();
    /// A file of which nothing is known yet.
    void clear();
    void showRecord(const QuorvinDataPtr &record);
    void showFailure(const QString &reason);

    /// The file of that name is being read. From when it can be skipped on, `seconds` tells for how long.
    void showWait(const QString &name, std::optional<int> seconds);
    void stopWaiting();

    /// What the panes can do on command.
    void registerAt(CommandSet &commands) const;
    /// The pane that is shown has something to copy.
    bool canCopy() const;
    void copy() const;

    ExtendedOutline &outline();

Q_SIGNALS:
    void openWanted();
    void retryWanted();
    void skipWanted();
    void selectionDidChange();
    void menuWanted(const QPoint &globalPosition);
    /// A stream line leads to its group on that tab.
    void tabWanted(quorvin::Tab tab);

private:
    void connectPanes();
    /// Fonts, row heights, wrapping and alignment.
    void applySettings();
    /// The pane to be looked at, as file and tab are.
    Pane *wantedPane() const;
    void showPage();

    const LiveSettings &_settings;
    QStackedWidget *_pages;
    EmptyPane *_noFile;
    EmptyPane *_failure;
    EmptyPane *_waiting;
    GeneralPane *_general;
    ExtendedPane *_extended;
    EmptyPane *_comparison;
    EmptyPane *_custom;
    const std::array<Pane *, 7> _panes; ///< all of these
    QPushButton *_skip;
    Tab _tab = Tab::General;
    bool _hasFile = false;
    bool _hasFailed = false;
    bool _isWaiting = false;
};

} // namespace quorvin
