// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QHash>
#include <QString>
#include <QVariant>

#include <mutex>
#include <optional>
#include <span>

namespace quorvin {

/// Every setting, in the order of the table. The enumerators are the keys.
enum class Setting {
    terminateAppWhenAllWindowsClosed,
    sidebarWidth,
    sidebarPos,
    extRowHeight,
    extFontSize,
    quickViewFontSize,
    quickViewRowHeight,
    lastExportFormat,
    lastExportType,
    lastComparisonExportFormat,
    lastExportWithoutFilePrivate,
    lastTab,
    openTab,
    hideUnknownFiles,
    enableDebug,
    enableExperimentalPreferences,
    compareFilesLimit,
    extComparisonHighlightValue,
    genComparisonHighlightValue,
    wrapLongLines,
    firstColumnBold,
    extParameterRightAlign,
    useSIUnits,
    useSlowThumbProcessing,
    displayOtherTracksInGeneral,
    videoUtility,
    computeFileHashes,
    useSystemMetadata,
    showCoincidences,
    MTMode,
    useQuickInfoService,
    mapType,
    SUFeedURL,
    debugDataCacher,
    sidebarIsHidden,
    extComparisonHighlight,
    readerProcesses,
    readerCpuSeconds,
    readerWallSeconds,
    readerMemoryMiB,
    colorScheme,
    mainWindowFrame,
    recentFiles,
    debugStalls,
    lastFolder,
    extNamesWidth,
    extComparisonRows,
    extComparisonNamesWidth,
    extComparisonColumnWidths,
    watchedParameters,
    savedRules,
    quickInfoFrame,
    quickInfoClosed,
    previewMuted,
    previewFrame,
    reopenLastList,
};

enum class SettingType { Boolean, Integer, Float, String };

struct SettingRow {
    Setting setting;
    QLatin1String key;
    SettingType type;
    QLatin1String defaultText; ///< as `settingText` writes it
    double least = 0; ///< of a number, as the other end
    double most = 0;
};

/// The one table of keys, types and defaults; the row of a setting has its enumerator as index.
std::span<const SettingRow> settingsTable();
const SettingRow &settingRow(Setting setting);
/// "boolean", "integer", "float" or "string".
QString nameOfType(SettingType type);
/// Booleans as true or false, floats with a decimal point.
QString settingText(SettingType type, const QVariant &value);
/// The value of that text; absent when it is none of the setting's type, or a number beyond its ends.
/// Booleans are true, false, 1 or 0.
std::optional<QVariant> settingFromText(const SettingRow &row, const QString &text);

/// The user's settings: a file, and over it what was set for this run alone. A value of the file that its
/// setting does not take counts as not there. Any thread.
class Settings {
public:
    /// Reads the file, which need not exist. `path` "" means no file: defaults only.
    explicit Settings(const QString &path);
    /// Where the user's settings lie: quorvin/settings.ini in the XDG config folder.
    static QString userPath();

    /// Each is for settings of its type; another one is a fault of the caller.
    bool boolean(Setting setting) const { return value(setting, SettingType::Boolean).toBool(); }
    int integer(Setting setting) const { return value(setting, SettingType::Integer).toInt(); }
    double real(Setting setting) const { return value(setting, SettingType::Float).toDouble(); }
    QString string(Setting setting) const { return value(setting, SettingType::String).toString(); }
    QString text(Setting setting) const;

    /// Sets a value for this run from "KEY=VALUE"; the error says what is wrong with that text.
    Expected<void> overrideFrom(const QString &assignment);

    /// Sets a value for this run and, where there is a file, for those to come. `value` is of the setting's
    /// type. What cannot be written is logged.
    void set(Setting setting, const QVariant &value);

private:
    QVariant value(Setting setting) const;
    QVariant value(Setting setting, SettingType type) const;

    QString _path;
    mutable std::mutex _lock; ///< guards the values and the file
    QHash<int, QVariant> _values; ///< by the setting's number: what differs from the default
};

} // namespace quorvin
