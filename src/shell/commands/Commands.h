// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFlags>

#include <span>

namespace quorvin {

/// Everything a user can ask a window for.
enum class Command {
    openEmptyWindow,
    openFile,
    openDirectory,
    addFile,
    openFileInNewWindow,
    refreshInfo,
    revealInFinder,
    menuExportNew,
    closeWindow,
    quit,
    copy,
    copyGeneralInfo,
    selectAll,
    removeSelectedItems,
    openPreferences,
    selectGeneralTab,
    selectExtendedTab,
    selectComparisonTab,
    selectCustomTab,
    toggleSidebar,
    clickWrapLongLines,
    expandAll,
    collapseAll,
    removeExtendedAttribute,
    touchDate,
    toggleFullScreen,
    openAcknowledgments,
    openAboutPanel,
};

/// What commands go by.
struct CommandState {
    bool hasFiles = false;
    bool hasCurrentFile = false;
    bool hasRecord = false; ///< of the current file
    bool canExportAll = false; ///< all files are done, and no export is under way
    bool canCopy = false; ///< what has the keyboard has something to copy
    bool sidebarIsCollapsed = false;
    bool wrapLongLines = false;
    bool isFullScreen = false;
    bool selectsAttribute
        = false; ///< the one selected row of the Extended tree shows an attribute of the file
    bool selectsDate = false; ///< it shows a date that the file's own can be set to
    int currentTab = 0;
};

enum class CommandMenu { File, Edit, View, Help };

/// Where a command stands beside its menu.
enum class CommandPlace {
    Nowhere = 0,
    ToolBar = 1,
    TabSelector = 2,
    FileMenu = 4, ///< the context menu of a file in the list
    TreeMenu = 8, ///< the context menu of the Extended tree
    ListArea = 16, ///< its keys count while the list has the keyboard, and not elsewhere
};
Q_DECLARE_FLAGS(CommandPlaces, CommandPlace)
Q_DECLARE_OPERATORS_FOR_FLAGS(CommandPlaces)

struct CommandRow {
    Command command;
    const char *text; ///< untranslated, with its mnemonic
    const char *icon; ///< nullptr: none
    const char *keys; ///< all ways to reach it, separated by "; "; nullptr: none
    CommandMenu menu;
    int section; ///< a menu has a line between one section and the next
    CommandPlaces places;
    bool (*isEnabled)(const CommandState &); ///< nullptr: always
    bool (*isChecked)(const CommandState &); ///< nullptr: it is no switch
    bool isHiddenWhileDisabled = false; ///< for what only few rows offer
};

/// The one table of commands, in the order of the menus; menus, tool bar and keys are built from it. The row
/// of a command has its enumerator as index.
std::span<const CommandRow> commandTable();

} // namespace quorvin
