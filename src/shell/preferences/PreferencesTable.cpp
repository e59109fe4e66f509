// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/preferences/PreferencesTable.h"

#include "process/ExifToolStart.h"

#include <QtGlobal>

#include <array>

namespace quorvin {

namespace {

using enum PreferencePage;

#define TEXT(text) QT_TRANSLATE_NOOP("Preferences", text)

constexpr std::array kSchemes{
    PreferenceChoice{TEXT("As the desktop"), "system"},
    PreferenceChoice{TEXT("Light"), "light"},
    PreferenceChoice{TEXT("Dark"), "dark"},
};
constexpr std::array kTabs{
    PreferenceChoice{TEXT("The tab shown last"), "0"},
    PreferenceChoice{TEXT("General"), "1"},
    PreferenceChoice{TEXT("Extended"), "2"},
    PreferenceChoice{TEXT("Comparison"), "3"},
    PreferenceChoice{TEXT("Custom"), "4"},
};
constexpr std::array kSides{
    PreferenceChoice{TEXT("On the side where lines begin"), "0"},
    PreferenceChoice{TEXT("On the side where lines end"), "1"},
};
constexpr std::array kUnits{
    PreferenceChoice{TEXT("Decimal: 1 KB is 1,000 bytes"), "true"},
    PreferenceChoice{TEXT("Binary: 1 KiB is 1,024 bytes"), "false"},
};
constexpr std::array kUtilities{
    PreferenceChoice{TEXT("MediaInfo"), "mediainfo"},
    PreferenceChoice{TEXT("exiftool"), "exiftool"},
};
constexpr std::array kThreads{
    PreferenceChoice{TEXT("1"), "0"},
    PreferenceChoice{TEXT("2"), "2"},
    PreferenceChoice{TEXT("4"), "4"},
    PreferenceChoice{TEXT("8"), "8"},
    PreferenceChoice{TEXT("As many as there are cores"), "256"},
};

constexpr std::array kWindow{
    PreferenceRow{Setting::colorScheme, TEXT("Colours:"), kSchemes},
    PreferenceRow{Setting::openTab, TEXT("New windows open with:"), kTabs},
    PreferenceRow{Setting::sidebarPos, TEXT("List of files:"), kSides},
    PreferenceRow{
        Setting::extFontSize,
        TEXT("Size of text:"),
        {},
        TEXT(" points"),
        TEXT("On the General, Extended and Comparison tabs; 12 is the size of the desktop's own text")},
    PreferenceRow{Setting::extRowHeight,
                  TEXT("Height of lines:"),
                  {},
                  TEXT(" points"),
                  TEXT("On the General, Extended and Comparison tabs; 16 fits text of 12")},
    PreferenceRow{Setting::quickViewFontSize,
                  TEXT("Size of text in Quick Info:"),
                  {},
                  TEXT(" points"),
                  TEXT("12 is the size of the desktop's own text")},
    PreferenceRow{Setting::quickViewRowHeight,
                  TEXT("Height of lines in Quick Info:"),
                  {},
                  TEXT(" points"),
                  TEXT("Of its streams; 16 fits text of 12")},
    PreferenceRow{Setting::wrapLongLines, TEXT("Continue long values on the next line")},
    PreferenceRow{Setting::extParameterRightAlign, TEXT("Put names close to their values")},
    PreferenceRow{
        Setting::compareFilesLimit, TEXT("Files side by side in a comparison, at most:"), {}, TEXT(" files")},
    PreferenceRow{Setting::firstColumnBold, TEXT("Names in bold in a comparison")},
    PreferenceRow{Setting::terminateAppWhenAllWindowsClosed, TEXT("Quit when the last window is closed")},
    PreferenceRow{Setting::reopenLastList,
                  TEXT("Bring the last window's files back at the next start"),
                  {},
                  nullptr,
                  TEXT("Their paths are kept on this computer as long as this is ticked")},
    PreferenceRow{Setting::enableExperimentalPreferences, TEXT("Show advanced preferences")},
};
const char *obstacleOfUtilities()
{
    return exifToolProgram().empty() ? TEXT("exiftool is not installed.") : nullptr;
}

constexpr std::array kFacts{
    PreferenceRow{Setting::useSIUnits, TEXT("Sizes of files:"), kUnits},
    PreferenceRow{Setting::videoUtility, TEXT("Files other than images are read with:"), kUtilities, nullptr,
                  TEXT("exiftool knows more tags of a file, MediaInfo more of its streams"),
                  obstacleOfUtilities},
    PreferenceRow{Setting::useSystemMetadata, TEXT("Tags, comments and origin of files")},
    PreferenceRow{Setting::displayOtherTracksInGeneral,
                  TEXT("Other tracks, such as timecode, on the General tab")},
    PreferenceRow{Setting::computeFileHashes,
                  TEXT("Checksums (MD5 and SHA-1)"),
                  {},
                  nullptr,
                  TEXT("Every byte of a file is read for them, which takes long for films")},
};
constexpr std::array kReading{
    PreferenceRow{Setting::MTMode, TEXT("Files read at the same time:"), kThreads},
    PreferenceRow{Setting::useSlowThumbProcessing,
                  TEXT("Make covers from the whole picture"),
                  {},
                  nullptr,
                  TEXT("Sharper than the preview inside the file, and slower")},
};
constexpr std::array kLimits{
    PreferenceRow{Setting::readerProcesses,
                  TEXT("Read files in protected processes"),
                  {},
                  nullptr,
                  TEXT("A damaged file can then cost its own line at most. The limits below need it")},
    PreferenceRow{
        Setting::readerCpuSeconds, TEXT("Computing time for a file, at most:"), {}, TEXT(" seconds")},
    PreferenceRow{
        Setting::readerWallSeconds, TEXT("Waiting time for a file, at most:"), {}, TEXT(" seconds")},
    PreferenceRow{Setting::readerMemoryMiB, TEXT("Memory for a file, at most:"), {}, TEXT(" MiB")},
};
constexpr std::array kLogs{
    PreferenceRow{Setting::debugDataCacher, TEXT("Log what is read when")},
    PreferenceRow{Setting::debugStalls, TEXT("Log what keeps the window waiting")},
    PreferenceRow{Setting::enableDebug,
                  TEXT("Show the Diagnostics menu"),
                  {},
                  nullptr,
                  TEXT("With what the libraries themselves say of a file, to be copied")},
};

constexpr std::array kSections{
    PreferenceSection{General, TEXT("Windows"), kWindow},
    PreferenceSection{General, TEXT("What is read of files"), kFacts, true},
    PreferenceSection{Advanced, TEXT("Reading"), kReading, true},
    PreferenceSection{Advanced, TEXT("Damaged files"), kLimits, true},
    PreferenceSection{Advanced, TEXT("When something is wrong"), kLogs},
};

#undef TEXT

} // namespace

std::span<const PreferenceSection> preferenceSections()
{
    return kSections;
}

} // namespace quorvin
