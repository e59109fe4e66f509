# SPDX-FileCopyrightText: 2026 The Quorvin authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Of the window, from the lowest floor up.
set(QUORVIN_SHELL_SOURCES
    shell/desktop/AccessibleRole.cpp
    shell/desktop/BackgroundRun.cpp
    shell/desktop/BoxStyle.cpp
    shell/desktop/ColorScheme.cpp
    shell/desktop/Contrast.cpp
    shell/desktop/Counts.cpp
    shell/desktop/FileManager.cpp
    shell/desktop/FocusRing.cpp
    shell/desktop/Icons.cpp
    shell/desktop/ItemViewAccess.cpp
    shell/desktop/MapProgram.cpp
    shell/desktop/OpenDialog.cpp
    shell/desktop/OpenWith.cpp
    shell/desktop/PictureThread.cpp
    shell/desktop/PlaceText.cpp
    shell/desktop/PlainText.cpp
    shell/desktop/TownLookup.cpp

    shell/session/FileDialogs.cpp
    shell/session/LastFolder.cpp
    shell/session/LiveSettings.cpp
    shell/session/RecentFiles.cpp
    shell/session/TemporaryFolders.cpp

    shell/outline/CellHeights.cpp
    shell/outline/CellText.cpp
    shell/outline/ExtTreeModel.cpp
    shell/outline/ExtendedOutline.cpp
    shell/outline/GroupMemory.cpp
    shell/outline/HitPlaces.cpp
    shell/outline/OutlineCopy.cpp
    shell/outline/OutlineDelegate.cpp
    shell/outline/OutlineHeader.cpp
    shell/outline/OutlinePlaces.cpp
    shell/outline/ParameterRow.cpp
    shell/outline/RowPlace.cpp
    shell/outline/StickyGroup.cpp
    shell/outline/WatchedParameter.cpp

    shell/commands/CommandSet.cpp
    shell/commands/CommandTable.cpp

    shell/filelist/ArrangedFilelist.cpp
    shell/filelist/ConditionGroup.cpp
    shell/filelist/ConditionRow.cpp
    shell/filelist/CurrentFileWait.cpp
    shell/filelist/FileIcons.cpp
    shell/filelist/FileReading.cpp
    shell/filelist/FilelistController.cpp
    shell/filelist/FilelistDelegate.cpp
    shell/filelist/FilelistDrags.cpp
    shell/filelist/FilelistFiltering.cpp
    shell/filelist/FilelistModel.cpp
    shell/filelist/FilelistPane.cpp
    shell/filelist/FilelistSearch.cpp
    shell/filelist/FilelistSelection.cpp
    shell/filelist/FilelistTable.cpp
    shell/filelist/FilterStrip.cpp
    shell/filelist/FolderWalks.cpp
    shell/filelist/RemovedFiles.cpp
    shell/filelist/RuleEditor.cpp
    shell/filelist/RuleField.cpp
    shell/filelist/SavedRules.cpp
    shell/filelist/SelectionSum.cpp

    shell/exporting/ExportController.cpp
    shell/exporting/ExportSheet.cpp
    shell/exporting/ExportTask.cpp

    shell/preview/PreviewPanel.cpp

    shell/preferences/LibraryVersions.cpp
    shell/preferences/PreferencesTable.cpp
    shell/preferences/PreferencesWindowController.cpp


    shell/charts/CountModel.cpp
    shell/charts/CountPlot.cpp
    shell/charts/MapExport.cpp
    shell/charts/ParameterChooser.cpp
    shell/charts/StatCounter.cpp
    shell/charts/StatExport.cpp
    shell/charts/StatWindow.cpp

    shell/compare/ColumnGrip.cpp
    shell/compare/ColumnWidths.cpp
    shell/compare/ComparedFiles.cpp
    shell/compare/ComparisonControls.cpp
    shell/compare/ComparisonDelegate.cpp
    shell/compare/ComparisonExportController.cpp
    shell/compare/ComparisonExportSheet.cpp
    shell/compare/ComparisonGrid.cpp
    shell/compare/ComparisonNote.cpp
    shell/compare/ComparisonTable.cpp
    shell/compare/ComparisonView.cpp
    shell/compare/FileHeader.cpp
    shell/compare/FindBar.cpp
    shell/compare/HeaderCorner.cpp
    shell/compare/LetterWidths.cpp
    shell/compare/ParameterHeader.cpp
    shell/compare/RowHeights.cpp

    shell/surgery/ExtractionController.cpp
    shell/surgery/ReceiptModel.cpp
    shell/surgery/RemovalController.cpp
    shell/surgery/RemovalForm.cpp
    shell/surgery/RemovalSheet.cpp
    shell/surgery/RemovalTask.cpp
    shell/surgery/RemovalWords.cpp
    shell/surgery/TracesOffer.cpp

    shell/info/ChangeableRows.cpp
    shell/info/ComparisonPane.cpp
    shell/info/CoverView.cpp
    shell/info/CustomPane.cpp
    shell/info/ElidedLabel.cpp
    shell/info/EmptyPane.cpp
    shell/info/ExtSearchBar.cpp
    shell/info/ExtendedPane.cpp
    shell/info/FactList.cpp
    shell/info/FailureAdvice.cpp
    shell/info/FailurePane.cpp
    shell/info/GeneralPane.cpp
    shell/info/GeneralSheet.cpp
    shell/info/InfoView.cpp
    shell/info/Pane.cpp
    shell/info/PrivacyChip.cpp
    shell/info/QuickInfoPanel.cpp
    shell/info/QuickInfoStack.cpp
    shell/info/QuickInfoView.cpp
    shell/info/RawReportDialog.cpp
    shell/info/RawReports.cpp
    shell/info/ReportText.cpp
    shell/info/StreamTable.cpp
    shell/info/WatchStrip.cpp

    shell/window/CompareCommands.cpp
    shell/window/CopyDrops.cpp
    shell/window/DiagnosticsCommands.cpp
    shell/window/DropHint.cpp
    shell/window/ExifToolNotice.cpp
    shell/window/FileCommands.cpp
    shell/window/FilterCommands.cpp
    shell/window/FilterPopover.cpp
    shell/window/FindCommands.cpp
    shell/window/FindField.cpp
    shell/window/FocusKeeper.cpp
    shell/window/ListCommands.cpp
    shell/window/ListMenu.cpp
    shell/window/MainView.cpp
    shell/window/MainWindowController.cpp
    shell/window/MenuKeys.cpp
    shell/window/MissingFiles.cpp
    shell/window/OpenPanels.cpp
    shell/window/OpenWithMenu.cpp
    shell/window/OpenedProject.cpp
    shell/window/ProjectMarks.cpp
    shell/window/ProjectState.cpp
    shell/window/QuickInfo.cpp
    shell/window/RemovalCommands.cpp
    shell/window/PlaceNote.cpp
    shell/window/PreviewCommands.cpp
    shell/window/SidebarSplitView.cpp
    shell/window/StatCommands.cpp
    shell/window/StatusLine.cpp
    shell/window/StatusMessage.cpp
    shell/window/TabSelector.cpp
    shell/window/TabSidebars.cpp
    shell/window/ToolBar.cpp
    shell/window/WindowFrame.cpp
    shell/window/WindowPlace.cpp
    shell/window/WindowProject.cpp
    shell/window/WorkNote.cpp

    shell/app/AppController.cpp
    shell/app/Application.cpp
    shell/app/ApplicationService.cpp
    shell/app/LastList.cpp
    shell/app/StartArguments.cpp
)
