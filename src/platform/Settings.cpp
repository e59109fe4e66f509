// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Settings.h"

#include "model/EnumNames.h"
#include "model/Log.h"

#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

using enum SettingType;

/// The key of a setting is its enumerator.
template <Setting setting>
constexpr SettingRow row(SettingType type, const char *defaultText, double least = 0, double most = 0)
{
    // With its length: the undefined behaviour sanitizer makes measuring it no constant expression.
    constexpr auto length = static_cast<qsizetype>(nameOfEnumerator<setting>().size());
    return {setting, QLatin1String(kTerminatedName<setting>.data(), length),
            type,    QLatin1String(defaultText),
            least,   most};
}

constexpr std::array kTable{
    row<Setting::terminateAppWhenAllWindowsClosed>(Boolean, "false"),
    row<Setting::sidebarWidth>(Float, "160.0", 0, 10'000),
    row<Setting::sidebarPos>(Integer, "0", 0, 1),
    row<Setting::extRowHeight>(Integer, "16", 8, 60),
    row<Setting::extFontSize>(Integer, "12", 6, 40),
    row<Setting::quickViewFontSize>(Integer, "11", 6, 40),
    row<Setting::quickViewRowHeight>(Integer, "15", 8, 60),
    row<Setting::lastExportFormat>(String, "txt"),
    row<Setting::lastExportType>(Integer, "1", 0, 1),
    row<Setting::lastComparisonExportFormat>(String, "csv"),
    row<Setting::lastExportWithoutFilePrivate>(Boolean, "false"),
    row<Setting::lastTab>(Integer, "0", 0, 3),
    row<Setting::openTab>(Integer, "0", 0, 4),
    row<Setting::hideUnknownFiles>(Boolean, "false"),
    row<Setting::enableDebug>(Boolean, "false"),
    row<Setting::enableExperimentalPreferences>(Boolean, "false"),
    row<Setting::compareFilesLimit>(Integer, "70", 1, 10'000),
    row<Setting::extComparisonHighlightValue>(Integer, "7", 0, 255),
    row<Setting::genComparisonHighlightValue>(Integer, "7", 0, 255),
    row<Setting::wrapLongLines>(Boolean, "true"),
    row<Setting::firstColumnBold>(Boolean, "true"),
    row<Setting::extParameterRightAlign>(Boolean, "true"),
    row<Setting::useSIUnits>(Boolean, "true"),
    row<Setting::useSlowThumbProcessing>(Boolean, "true"),
    row<Setting::displayOtherTracksInGeneral>(Boolean, "false"),
    row<Setting::videoUtility>(String, "mediainfo"),
    row<Setting::computeFileHashes>(Boolean, "false"),
    row<Setting::useSystemMetadata>(Boolean, "true"),
    row<Setting::showCoincidences>(Boolean, "false"),
    row<Setting::MTMode>(Integer, "0", 0, 256),
    row<Setting::useQuickInfoService>(Boolean, "false"),
    row<Setting::mapType>(Integer, "0", 0, 15),
    row<Setting::SUFeedURL>(String, ""),
    row<Setting::debugDataCacher>(Boolean, "false"),
    row<Setting::sidebarIsHidden>(Boolean, "false"),
    row<Setting::extComparisonHighlight>(Boolean, "false"),
    row<Setting::readerProcesses>(Boolean, "true"),
    row<Setting::readerCpuSeconds>(Integer, "20", 1, 3600),
    row<Setting::readerWallSeconds>(Integer, "60", 1, 3600),
    row<Setting::readerMemoryMiB>(Integer, "2048", 256, 65'536),
    row<Setting::colorScheme>(String, "system"),
    row<Setting::mainWindowFrame>(String, ""),
    row<Setting::recentFiles>(String, ""),
    row<Setting::debugStalls>(Boolean, "false"),
    row<Setting::lastFolder>(String, ""),
    row<Setting::extNamesWidth>(Integer, "0", 0, 10'000),
    row<Setting::extComparisonRows>(Integer, "0", 0, 2),
    row<Setting::extComparisonNamesWidth>(Integer, "0", 0, 10'000),
    row<Setting::extComparisonColumnWidths>(String, ""),
    row<Setting::watchedParameters>(String, ""),
    row<Setting::savedRules>(String, ""),
    row<Setting::quickInfoFrame>(String, ""),
    row<Setting::quickInfoClosed>(String, ""),
    row<Setting::previewMuted>(Boolean, "false"),
    row<Setting::previewFrame>(String, ""),
    row<Setting::reopenLastList>(Boolean, "false"),
};
static_assert(hasRowOfEach(kTable, &SettingRow::setting));
static_assert(std::ranges::all_of(kTable, [](const SettingRow &row) {
    return (row.type == Integer || row.type == Float) == (row.least < row.most);
}));

constexpr bool isNumber(SettingType type)
{
    return type == Integer || type == Float;
}

QString rangeText(const SettingRow &row)
{
    return isNumber(row.type)
        ? QStringLiteral(" from %1 to %2").arg(row.least, 0, 'f', 0).arg(row.most, 0, 'f', 0)
        : QString();
}

} // namespace

const SettingRow &settingRow(Setting setting)
{
    return kTable[static_cast<std::size_t>(setting)];
}

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

std::optional<QVariant> settingFromText(const SettingRow &row, const QString &text)
{
    bool ok = true;
    QVariant value = text;
    if (row.type == Boolean) {
        value = text == QLatin1String("true") || text == QLatin1String("1");
        ok = value.toBool() || text == QLatin1String("false") || text == QLatin1String("0");
    } else if (isNumber(row.type)) {
        value = row.type == Integer ? QVariant(text.toInt(&ok)) : QVariant(text.toDouble(&ok));
        // Written so that what is no number at all fails.
        ok = ok && value.toDouble() >= row.least && value.toDouble() <= row.most;
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
        if (const auto value = stored.isValid() ? settingFromText(row, stored.toString()) : std::nullopt)
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
    const SettingRow &row = settingRow(setting);
    return *settingFromText(row, row.defaultText);
}

QVariant Settings::value(Setting setting, [[maybe_unused]] SettingType type) const
{
    Q_ASSERT_X(settingRow(setting).type == type, "Settings", settingRow(setting).key.data());
    return value(setting);
}

QString Settings::text(Setting setting) const
{
    return settingText(settingRow(setting).type, value(setting));
}

Expected<void> Settings::overrideFrom(const QString &assignment)
{
    const qsizetype equals = assignment.indexOf(u'=');
    const QString key = assignment.left(equals);
    const auto row
        = std::ranges::find_if(kTable, [&](const SettingRow &candidate) { return candidate.key == key; });
    if (equals < 0)
        return failure(QStringLiteral("'%1' is not KEY=VALUE").arg(assignment));
    if (row == kTable.end())
        return failure(QStringLiteral("there is no setting '%1'").arg(key));
    const auto parsed = settingFromText(*row, assignment.mid(equals + 1));
    if (!parsed)
        return failure(QStringLiteral("setting '%1' takes a value of type %2").arg(key, nameOfType(row->type))
                       + rangeText(*row));
    const std::lock_guard guard(_lock);
    _values.insert(static_cast<int>(row->setting), *parsed);
    return {};
}

void Settings::set(Setting setting, const QVariant &value)
{
    const SettingRow &row = settingRow(setting);
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
