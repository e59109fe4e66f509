// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/commands/Commands.h"

#include <QtGlobal>

#include <array>

namespace quorvin {

namespace {

using enum CommandMenu;
using enum CommandPlace;
using S = const CommandState &;

template <int TAB>
bool isTab(S state)
{
    return state.currentTab == TAB;
}

constexpr auto hasFiles = [](S state) { return state.hasFiles; };
constexpr auto hasCurrentFile = [](S state) { return state.hasCurrentFile; };
constexpr auto hasRecord = [](S state) { return state.hasRecord; };
constexpr auto canExportAll = [](S state) { return state.canExportAll; };
constexpr auto canCopy = [](S state) { return state.canCopy; };
constexpr auto hasTree = [](S state) { return state.hasRecord && state.currentTab == 1; };
constexpr auto selectsAttribute = [](S state) { return state.selectsAttribute; };
constexpr auto selectsDate = [](S state) { return state.selectsDate; };
constexpr auto showsSidebar = [](S state) { return !state.sidebarIsCollapsed; };
constexpr auto wrapsLongLines = [](S state) { return state.wrapLongLines; };
constexpr auto isFullScreen = [](S state) { return state.isFullScreen; };

#define TEXT(text) QT_TRANSLATE_NOOP("Commands", text)

constexpr std::array kTable{
    CommandRow{Command::openEmptyWindow, TEXT("&New Window"), "window-new", "Ctrl+N", File, 0, Nowhere,
               nullptr, nullptr},
    CommandRow{Command::openFile, TEXT("&Open…"), "document-open", "Ctrl+O", File, 1, ToolBar, nullptr,
               nullptr},
    CommandRow{Command::openDirectory, TEXT("Open &Folder…"), "folder-open", "Ctrl+Shift+O", File, 1, Nowhere,
               nullptr, nullptr},
    CommandRow{Command::addFile, TEXT("&Add Files…"), "list-add", "Ctrl+Shift+A", File, 1, Nowhere, nullptr,
               nullptr},
    CommandRow{Command::openFileInNewWindow, TEXT("Open in New &Window…"), nullptr, "Ctrl+Shift+N", File, 1,
               Nowhere, nullptr, nullptr},
    CommandRow{Command::refreshInfo, TEXT("&Refresh"), "view-refresh", "F5", File, 2, FileMenu,
               hasCurrentFile, nullptr},
    CommandRow{Command::revealInFinder, TEXT("&Show in Folder"), nullptr, "Ctrl+Alt+O", File, 2, FileMenu,
               hasCurrentFile, nullptr},
    CommandRow{Command::menuExportNew, TEXT("&Export…"), "document-export", "Ctrl+E", File, 2, ToolBar,
               canExportAll, nullptr},
    CommandRow{Command::closeWindow, TEXT("&Close Window"), "window-close", "Ctrl+W", File, 3, Nowhere,
               nullptr, nullptr},
    CommandRow{Command::quit, TEXT("&Quit"), "application-exit", "Ctrl+Q", File, 3, Nowhere, nullptr,
               nullptr},
    CommandRow{Command::copy, TEXT("&Copy"), "edit-copy", "Ctrl+C; Ctrl+Ins", Edit, 0, FileMenu | TreeMenu,
               canCopy, nullptr},
    CommandRow{Command::copyGeneralInfo, TEXT("Copy &General Info"), nullptr, "Ctrl+Shift+C", Edit, 0,
               FileMenu, hasRecord, nullptr},
    CommandRow{Command::selectAll, TEXT("Select &All"), "edit-select-all", "Ctrl+A", Edit, 1, TreeMenu,
               hasTree, nullptr},
    CommandRow{Command::removeSelectedItems, TEXT("&Remove from List"), "list-remove", "Del; Backspace", Edit,
               1, FileMenu | ListArea, hasFiles, nullptr},
    CommandRow{Command::openPreferences, TEXT("&Preferences…"), "configure", "Ctrl+,", Edit, 2, Nowhere,
               nullptr, nullptr},
    CommandRow{Command::selectGeneralTab, TEXT("&General"), nullptr, "Ctrl+1", View, 0, TabSelector, nullptr,
               isTab<0>},
    CommandRow{Command::selectExtendedTab, TEXT("&Extended"), nullptr, "Ctrl+2", View, 0, TabSelector,
               nullptr, isTab<1>},
    CommandRow{Command::selectComparisonTab, TEXT("&Comparison"), nullptr, "Ctrl+3", View, 0, TabSelector,
               nullptr, isTab<2>},
    CommandRow{Command::selectCustomTab, TEXT("C&ustom"), nullptr, "Ctrl+4", View, 0, TabSelector, nullptr,
               isTab<3>},
    CommandRow{Command::toggleSidebar, TEXT("&Sidebar"), "view-sidetree", "F9", View, 1, ToolBar, nullptr,
               showsSidebar},
    CommandRow{Command::clickWrapLongLines, TEXT("&Wrap Long Lines"), nullptr, "Ctrl+Shift+W", View, 1,
               TreeMenu, nullptr, wrapsLongLines},
    CommandRow{Command::expandAll, TEXT("Op&en All Groups"), nullptr, "Ctrl+Shift+Down", View, 2, TreeMenu,
               hasTree, nullptr},
    CommandRow{Command::collapseAll, TEXT("Cl&ose All Groups"), nullptr, "Ctrl+Shift+Up", View, 2, TreeMenu,
               hasTree, nullptr},
    CommandRow{Command::removeExtendedAttribute, TEXT("Remove from the File…"), nullptr, nullptr, Edit, 3,
               TreeMenu, selectsAttribute, nullptr, true},
    CommandRow{Command::touchDate, TEXT("Set the File's Date to This"), nullptr, nullptr, Edit, 3, TreeMenu,
               selectsDate, nullptr, true},
    CommandRow{Command::toggleFullScreen, TEXT("&Full Screen"), "view-fullscreen", "F11", View, 3, Nowhere,
               nullptr, isFullScreen},
    CommandRow{Command::openAcknowledgments, TEXT("A&cknowledgments"), nullptr, nullptr, Help, 0, Nowhere,
               nullptr, nullptr},
    CommandRow{Command::openAboutPanel, TEXT("&About Quorvin"), "help-about", nullptr, Help, 0, Nowhere,
               nullptr, nullptr},
};

#undef TEXT

} // namespace

std::span<const CommandRow> commandTable()
{
    return kTable;
}

} // namespace quorvin
