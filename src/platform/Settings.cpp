// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Settings.h"

#include "model/Log.h"

#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

using enum SettingType;
using L = QLatin1String;

constexpr std::array kTable{
    SettingRow{Setting::terminateAppWhenAllWindowsClosed, L("terminateAppWhenAllWindowsClosed"), Boolean,
               L("false")},
    SettingRow{Setting::sidebarWidth, L("sidebarWidth"), Float, L("160.0")},
    SettingRow{Setting::sidebarPos, L("sidebarPos"), Integer, L("0")},
    SettingRow{Setting::extRowHeight, L("extRowHeight"), Integer, L("16")},
    SettingRow{Setting::extFontSize, L("extFontSize"), Integer, L("12")},
    SettingRow{Setting::quickViewFontSize, L("quickViewFontSize"), Integer, L("11")},
    SettingRow{Setting::quickViewRowHeight, L("quickViewRowHeight"), Integer, L("15")},
    SettingRow{Setting::lastExportFormat, L("lastExportFormat"), String, L("txt")},
    SettingRow{Setting::lastExportType, L("lastExportType"), Integer, L("1")},
    SettingRow{Setting::lastComparisonExportFormat, L("lastComparisonExportFormat"), String, L("csv")},
    SettingRow{Setting::lastExportWithoutFilePrivate, L("lastExportWithoutFilePrivate"), Boolean, L("false")},
    SettingRow{Setting::lastTab, L("lastTab"), Integer, L("0")},
    SettingRow{Setting::openTab, L("openTab"), Integer, L("0")},
    SettingRow{Setting::hideUnknownFiles, L("hideUnknownFiles"), Boolean, L("false")},
    SettingRow{Setting::enableDebug, L("enableDebug"), Boolean, L("false")},
    SettingRow{Setting::enableExperimentalPreferences, L("enableExperimentalPreferences"), Boolean,
               L("false")},
    SettingRow{Setting::compareFilesLimit, L("compareFilesLimit"), Integer, L("70")},
    SettingRow{Setting::extComparisonHighlightValue, L("extComparisonHighlightValue"), Integer, L("7")},
    SettingRow{Setting::genComparisonHighlightValue, L("genComparisonHighlightValue"), Integer, L("7")},
    SettingRow{Setting::wrapLongLines, L("wrapLongLines"), Boolean, L("true")},
    SettingRow{Setting::firstColumnBold, L("firstColumnBold"), Boolean, L("true")},
    SettingRow{Setting::extParameterRightAlign, L("extParameterRightAlign"), Boolean, L("true")},
    SettingRow{Setting::useSIUnits, L("useSIUnits"), Boolean, L("true")},
    SettingRow{Setting::useSlowThumbProcessing, L("useSlowThumbProcessing"), Boolean, L("true")},
    SettingRow{Setting::displayOtherTracksInGeneral, L("displayOtherTracksInGeneral"), Boolean, L("false")},
    SettingRow{Setting::videoUtility, L("videoUtility"), String, L("mediainfo")},
    SettingRow{Setting::computeFileHashes, L("computeFileHashes"), Boolean, L("false")},
    SettingRow{Setting::useSystemMetadata, L("useSystemMetadata"), Boolean, L("true")},
    SettingRow{Setting::showCoincidences, L("showCoincidences"), Boolean, L("false")},
    SettingRow{Setting::MTMode, L("MTMode"), Integer, L("0")},
    SettingRow{Setting::useQuickInfoService, L("useQuickInfoService"), Boolean, L("false")},
    SettingRow{Setting::mapType, L("mapType"), Integer, L("0")},
    SettingRow{Setting::SUFeedURL, L("SUFeedURL"), String, L("")},
    SettingRow{Setting::debugDataCacher, L("debugDataCacher"), Boolean, L("false")},
    SettingRow{Setting::sidebarIsHidden, L("sidebarIsHidden"), Boolean, L("false")},
    SettingRow{Setting::extComparisonHighlight, L("extComparisonHighlight"), Boolean, L("false")},
    SettingRow{Setting::readerProcesses, L("readerProcesses"), Boolean, L("true")},
    SettingRow{Setting::readerCpuSeconds, L("readerCpuSeconds"), Integer, L("20")},
    SettingRow{Setting::readerWallSeconds, L("readerWallSeconds"), Integer, L("60")},
    SettingRow{Setting::readerMemoryMiB, L("readerMemoryMiB"), Integer, L("2048")},
    SettingRow{Setting::colorScheme, L("colorScheme"), String, L("system")},
    SettingRow{Setting::mainWindowFrame, L("mainWindowFrame"), String, L("")},
    SettingRow{Setting::recentFiles, L("recentFiles"), String, L("")},
    SettingRow{Setting::debugStalls, L("debugStalls"), Boolean, L("false")},
};

const SettingRow &rowOf(Setting setting)
{
    return kTable[static_cast<std::size_t>(setting)];
}

} // namespace

std::span<const SettingRow> settingsTable()
{
    return kTable;
}

QString nameOfType(SettingType type)
{
    switch (type) {
    case Boolean:
        return QStringLiteral("boolean");
    case Integer:
        return QStringLiteral("integer");
    case Float:
        return QStringLiteral("float");
    case String:
        break;
    }
    return QStringLiteral("string");
}

QString settingText(SettingType type, const QVariant &value)
{
    const QString text = value.toString();
    return type == Float && !text.contains(u'.') && !text.contains(u'e') ? text + QLatin1String(".0") : text;
}

std::optional<QVariant> settingFromText(SettingType type, const QString &text)
{
    bool ok = true;
    QVariant value = text;
    if (type == Boolean) {
        value = text == QLatin1String("true") || text == QLatin1String("1");
        ok = value.toBool() || text == QLatin1String("false") || text == QLatin1String("0");
    } else if (type == Integer) {
        value = text.toInt(&ok);
    } else if (type == Float) {
        value = text.toDouble(&ok);
    }
    return ok ? std::optional(value) : std::nullopt;
}

Settings::Settings(const QString &path) : _path(path)
{
    if (path.isEmpty())
        return;
    const QSettings file(path, QSettings::IniFormat);
    for (const SettingRow &row : kTable) {
        const QVariant stored = file.value(row.key);
        if (const auto value = stored.isValid() ? settingFromText(row.type, stored.toString()) : std::nullopt)
            _values.insert(static_cast<int>(row.setting), *value);
    }
}

QString Settings::userPath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + QLatin1String("/quorvin/settings.ini");
}

QVariant Settings::value(Setting setting) const
{
    const std::lock_guard guard(_lock);
    if (const auto found = _values.constFind(static_cast<int>(setting)); found != _values.constEnd())
        return *found;
    const SettingRow &row = rowOf(setting);
    return *settingFromText(row.type, row.defaultText);
}

QString Settings::text(Setting setting) const
{
    return settingText(rowOf(setting).type, value(setting));
}

std::optional<QString> Settings::overrideFrom(const QString &assignment)
{
    const qsizetype equals = assignment.indexOf(u'=');
    const QString key = assignment.left(equals);
    const auto row
        = std::ranges::find_if(kTable, [&](const SettingRow &candidate) { return candidate.key == key; });
    if (equals < 0)
        return QStringLiteral("'%1' is not KEY=VALUE").arg(assignment);
    if (row == kTable.end())
        return QStringLiteral("there is no setting '%1'").arg(key);
    const auto parsed = settingFromText(row->type, assignment.mid(equals + 1));
    if (!parsed)
        return QStringLiteral("setting '%1' takes a value of type %2").arg(key, nameOfType(row->type));
    const std::lock_guard guard(_lock);
    _values.insert(static_cast<int>(row->setting), *parsed);
    return std::nullopt;
}

void Settings::set(Setting setting, const QVariant &value)
{
    const SettingRow &row = rowOf(setting);
    const std::lock_guard guard(_lock);
    _values.insert(static_cast<int>(setting), value);
    if (_path.isEmpty())
        return;
    QSettings file(_path, QSettings::IniFormat);
    file.setValue(row.key, settingText(row.type, value));
    file.sync();
    if (file.status() != QSettings::NoError)
        qCInfo(lcQuorvin).noquote() << "Failed to write the settings:" << _path;
}

} // namespace quorvin
