// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/TabSidebars.h"

#include "shell/session/LiveSettings.h"
#include "shell/window/SidebarSplitView.h"

namespace quorvin {

TabSidebars::TabSidebars(SidebarSplitView &sidebar, LiveSettings &settings)
    : QObject(&sidebar), _sidebar(sidebar), _settings(settings)
{
    connect(&sidebar, &SidebarSplitView::closedByHand, this, [this] { note(false); });
    connect(&settings, &LiveSettings::changed, this, [this](Setting setting) {
        if (setting == Setting::sidebarPos)
            _sidebar.setSidebarPosition(_settings.integer(setting));
    });
    sidebar.setSidebarPosition(settings.integer(Setting::sidebarPos));
    if (settings.boolean(Setting::sidebarIsHidden)) {
        sidebar.hideSidebarWithoutAnimation();
        _openSidebar = false;
    }
}

void TabSidebars::restoreWidth()
{
    _sidebar.setSidebarWidth(_settings.real(Setting::sidebarWidth));
}

void TabSidebars::tabWillChange(Tab to)
{
    if (_sidebar.isCollapsed() || _tab == Tab::Comparison)
        _openSidebarForComparison = !_sidebar.isCollapsed();
    _tab = to;
    if (to == Tab::Comparison ? _openSidebarForComparison : _openSidebar)
        _sidebar.showSidebarWithoutAnimation();
    else
        _sidebar.hideSidebarWithoutAnimation();
}

void TabSidebars::toggle()
{
    note(_sidebar.isCollapsed());
    _sidebar.toggleSidebar();
}

void TabSidebars::note(bool isWanted)
{
    _openSidebar = isWanted;
    if (_tab == Tab::Comparison)
        _openSidebarForComparison = isWanted;
    _settings.set(Setting::sidebarIsHidden, !isWanted);
}

void TabSidebars::save()
{
    _settings.set(Setting::sidebarWidth, double(_sidebar.sidebarWidth()));
    _settings.set(Setting::sidebarIsHidden, !_openSidebar);
}

} // namespace quorvin
