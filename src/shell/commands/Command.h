// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Tabs.h"

#include <QFlags>

namespace quorvin {

/// Everything a user can ask a window for, in the order of the menus.
enum class Command {
    openEmptyWindow,
    openFile,
    openDirectory,
    addFile,
    addFolder,
    openFileInNewWindow,
    compareInWindow,
    compareExtendedInWindow,
    refreshInfo,
    refreshAll,
    stopReading,
    cancelWalks,
    togglePreviewPanel,
    revealInFinder,
    menuExportNew,
    exportSelection,
    exportComparison,
    displayCovers,
    extractPreviewsAndCover,
    extractAttachments,
    saveProject,
    saveProjectAs,
    relinkMissing,
    checkChanges,
    closeWindow,
    quit,

    undoRemoval,
    copy,
    copyValue,
    copyGeneralInfo,
    copyCover,
    paste,
    selectAll,
    performExtFind,
    findNext,
    findPrevious,
    removeSelectedItems,
    selectNextFailed,
    openPreferences,

    performProjectFind,
    filterByName,
    toggleFilelistFilter,
    toggleHideUnknownFiles,
    showOnlyWithValue,
    showOnlyWithoutParameter,
    showAllFiles,
    toggleWatch,

    selectGeneralTab,
    selectExtendedTab,
    selectComparisonTab,
    selectCustomTab,
    selectPreviousTab,
    selectNextTab,
    toggleSidebar,
    widenSidebar,
    narrowSidebar,
    toggleQuickInfo,
    showStatWindow,
    showMapWindow,
    showOnMap,
    parameterStatistics,
    clickWrapLongLines,
    zoomIn,
    zoomOut,
    actualSize,
    showStream,
    expandAll,
    collapseAll,
    toggleFullScreen,

    showNextDifference,
    showPreviousDifference,
    makeReference,
    moveColumnBackward,
    moveColumnForward,
    closeColumn,

    menuRemoveImageMetadata,
    removeLocationInfo,
    removeExtendedAttribute,
    touchDate,

    copyMediaInfoOutput,
    copyMediaInfoTraceOutput,
    copyExiv2Output,
    copyExiv2Structure,
    copyExiv2Xmp,
    copyExiftoolOutput,
    copyImageio,
    mp4Metadata,
    customWithMediaInfo,
    customWithMediaInfoComplete,
    customWithExiftool,
    customWithRawXmp,
    testExiv2,
    copyLibParametersCSV,
    copyLibParametersCSV2,
    testQuickInfo,
    exchangeViews,

    openAcknowledgments,
    openAboutPanel,

    count, ///< how many there are; no command
};

/// What commands go by.
struct CommandState {
    bool hasFiles = false;
    bool hasCurrentFile = false;
    bool hasPlace = false; ///< the current file tells where on the Earth it was recorded
    bool hasRecord = false; ///< of the current file
    bool hasFailed = false; ///< some file could not be read
    bool isReading = false; ///< files are on their way
    bool isWalking = false; ///< folders are looked through
    bool canUndoRemoval = false;
    bool canExportAll = false; ///< all files are done, and no export is under way
    bool belongsToProject = false; ///< the window does
    bool canExportComparison = false; ///< there is one, and no export of one is under way
    bool canExportSelection = false; ///< the current file has a record, and no export is under way
    bool canCopy = false; ///< what has the keyboard has something to copy
    bool listHasKeyboard = false;
    bool canCopyValue = false; ///< it is a value with a name beside it
    bool selectsParameter = false; ///< the one selected row of the Extended tree is one
    bool watchesParameter = false; ///< and it is watched
    bool hidesUnknownFiles = false;
    bool isListNarrowed = false; ///< files of the list may be hidden
    bool hasPictures = false; ///< the current file carries some inside
    bool showsCover = false; ///< a picture that came out of the current file
    bool selectsStream = false; ///< the selected line of General leads to a group of the Extended tree
    bool canFind = false; ///< the pane that is looked at can be searched
    bool showsTable = false; ///< the comparison is on the screen and has files
    bool selectsCell = false; ///< of the comparison, in the row of a parameter
    bool selectsColumn = false; ///< of a file in the comparison
    bool selectsReference = false; ///< and it is the one that others are held against
    bool sidebarIsCollapsed = false;
    bool showsQuickInfo = false;
    bool wrapLongLines = false;
    bool isFullScreen = false;
    bool selectsAttribute
        = false; ///< the one selected row of the Extended tree shows an attribute of the file
    bool selectsDate = false; ///< it shows a date that the file's own can be set to
    Tab currentTab = Tab::General;

    /// The Extended tree is on the screen and has rows.
    constexpr bool showsTree() const { return hasRecord && currentTab == Tab::Extended; }
};

enum class CommandMenu { File, Edit, Search, View, Diagnostics, Help };

/// Where a command stands beside its menu.
enum class CommandPlace {
    Nowhere = 0,
    ToolBar = 1,
    TabSelector = 2,
    FileMenu = 4, ///< the context menu of a file in the list
    TreeMenu = 8, ///< the context menu of the Extended tree
    ListArea = 16, ///< its keys count while the list has the keyboard, and not elsewhere
    StreamMenu = 32, ///< the context menu of a line of General
    FactMenu = 64, ///< the context menu of a fact of General
    CoverMenu = 128, ///< the context menu of the cover
    ComparisonMenu = 256, ///< the context menu of a cell, a file or a parameter of the comparison
    ToolBarEnd = 512, ///< behind the tabs
};
Q_DECLARE_FLAGS(CommandPlaces, CommandPlace)
Q_DECLARE_OPERATORS_FOR_FLAGS(CommandPlaces)

struct CommandRow {
    Command command;
    const char *text; ///< untranslated, with its mnemonic
    const char *icon = nullptr; ///< nullptr: none
    const char *keys = nullptr; ///< all ways to reach it, separated by "; "; nullptr: none
    CommandMenu menu;
    int section; ///< a menu has a line between one section and the next
    CommandPlaces places = CommandPlace::Nowhere;
    bool (*isEnabled)(const CommandState &) = nullptr; ///< nullptr: always
    bool (*isChecked)(const CommandState &) = nullptr; ///< nullptr: it is no switch
    bool isHiddenWhileDisabled = false; ///< for what only few rows offer
    const char *tip = nullptr; ///< what it does, untranslated, where the text alone says little; or nullptr
};

} // namespace quorvin
