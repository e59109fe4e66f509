// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Settings.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

/// A value of the type that is not the default.
QString otherText(const SettingRow &row)
{
    switch (row.type) {
    case SettingType::Boolean:
        return row.defaultText == QLatin1String("true") ? QStringLiteral("false") : QStringLiteral("true");
    case SettingType::Integer:
        return QString::number(QString(row.defaultText).toInt() == row.most ? row.least : row.most, 'f', 0);
    case SettingType::Float:
        return QStringLiteral("47.5");
    case SettingType::String:
        break;
    }
    return QStringLiteral("other");
}

} // namespace

TEST(Settings, EveryKeyLoadsAwayFromItsDefault)
{
    const test::TestFolder folder;
    QByteArray file = "[General]\n";
    for (const SettingRow &row : settingsTable())
        file += QByteArray(row.key.data()) + '=' + otherText(row).toUtf8() + '\n';
    const Settings loaded(folder.write(QStringLiteral("settings.ini"), file));
    const Settings defaults{QString()};
    for (std::size_t i = 0; i < settingsTable().size(); ++i) {
        const SettingRow &row = settingsTable()[i];
        EXPECT_EQ(static_cast<std::size_t>(row.setting), i);
        EXPECT_EQ(loaded.text(row.setting), otherText(row)) << row.key.data();
        EXPECT_EQ(defaults.text(row.setting), row.defaultText) << row.key.data();
    }
}

TEST(Settings, ValueThatItsSettingDoesNotTakeCountsAsNotThere)
{
    const test::TestFolder folder;
    const Settings settings(folder.write(QStringLiteral("settings.ini"),
                                         "[General]\nuseSIUnits=maybe\nextFontSize=big\nsidebarWidth=inf\n"
                                         "readerMemoryMiB=1\n"));
    EXPECT_TRUE(settings.boolean(Setting::useSIUnits));
    EXPECT_EQ(settings.integer(Setting::extFontSize), 12);
    EXPECT_EQ(settings.real(Setting::sidebarWidth), 160);
    EXPECT_EQ(settings.integer(Setting::readerMemoryMiB), 2048);
}

TEST(Settings, OverridesAreChecked)
{
    Settings settings{QString()};
    EXPECT_TRUE(settings.overrideFrom(QStringLiteral("videoUtility=a=b")));
    EXPECT_EQ(settings.string(Setting::videoUtility), QStringLiteral("a=b"));
    EXPECT_TRUE(settings.overrideFrom(QStringLiteral("sidebarWidth=200")));
    EXPECT_EQ(settings.text(Setting::sidebarWidth), QStringLiteral("200.0"));
    for (const char *wrong : {"useSIUnits", "useSIUnits=", "useSIUnits=yes", "extFontSize=1.5", "none=1",
                              "=1", "sidebarWidth=nan", "sidebarWidth=inf", "sidebarWidth=-1",
                              "readerCpuSeconds=0", "readerCpuSeconds=3601"})
        EXPECT_FALSE(settings.overrideFrom(QLatin1String(wrong))) << wrong;
}

TEST(Settings, WhatIsSetStaysAndLeavesTheRestOfTheFileAlone)
{
    const test::TestFolder folder;
    const QString path
        = folder.write(QStringLiteral("settings.ini"), "[General]\nuseSIUnits=false\nforeign=7\n");
    {
        Settings settings(path);
        settings.set(Setting::sidebarWidth, 200.0);
        settings.set(Setting::mainWindowFrame, QStringLiteral("a,b;\u00fc=\n"));
        EXPECT_EQ(settings.real(Setting::sidebarWidth), 200.0);
    }
    const Settings again(path);
    EXPECT_EQ(again.text(Setting::sidebarWidth), QStringLiteral("200.0"));
    EXPECT_EQ(again.string(Setting::mainWindowFrame), QStringLiteral("a,b;\u00fc=\n"));
    EXPECT_FALSE(again.boolean(Setting::useSIUnits));
    EXPECT_TRUE(test::contentOf(path).contains("foreign=7"));
}

} // namespace quorvin
