// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Tabs.h"

#include <QObject>

namespace quorvin {

class LiveSettings;
class SidebarSplitView;

/// Whether the list at the side is wanted: the Comparison tab, which wants none at first, and all other tabs
/// apart. What the user does at the divider counts as the command does. Main thread.
class TabSidebars : public QObject {
    Q_OBJECT
public:
    /// Side and state of a new window are those of the settings. Belongs to the sidebar; `settings` must
    /// outlive it.
    TabSidebars(SidebarSplitView &sidebar, LiveSettings &settings);

    /// The width of the settings, once the window has its own.
    void restoreWidth();
    void tabWillChange(Tab to);
    /// What the user asks for.
    void toggle();
    /// For windows to come.
    void save();

private:
    void note(bool isWanted);

    SidebarSplitView &_sidebar;
    LiveSettings &_settings;
    Tab _tab = Tab::General;
    bool _openSidebar = true; ///< wanted on all tabs but Comparison
    bool _openSidebarForComparison = false;
};

} // namespace quorvin
