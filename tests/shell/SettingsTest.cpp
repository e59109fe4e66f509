// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/preferences/PreferencesWindowController.h"
#include "shell/session/LastFolder.h"
#include "shell/session/LiveSettings.h"
#include "shell/session/RecentFiles.h"
#include "support/TestFolder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

struct LiveSettingsTest : testing::Test {
    test::TestFolder folder;
    const QString path = folder / QStringLiteral("settings.ini");
    Settings values{path};
    LiveSettings settings{values};
    std::vector<Setting> changes;

    LiveSettingsTest()
    {
        QObject::connect(&settings, &LiveSettings::changed,
                         [this](Setting setting) { changes.push_back(setting); });
    }
};

} // namespace

TEST_F(LiveSettingsTest, TellWhatHasAnotherValueThanBefore)
{
    settings.set(Setting::wrapLongLines, true);
    EXPECT_TRUE(changes.empty()) << "it was true before";
    settings.toggle(Setting::wrapLongLines);
    EXPECT_FALSE(values.boolean(Setting::wrapLongLines));
    settings.set(Setting::MTMode, QStringLiteral("4"));
    EXPECT_EQ(settings.integer(Setting::MTMode), 4);
    settings.set(Setting::MTMode, QStringLiteral("many"));
    EXPECT_EQ(settings.integer(Setting::MTMode), 4) << "that is no number";
    settings.set(Setting::sidebarWidth, 160.0);
    EXPECT_EQ(changes, (std::vector{Setting::wrapLongLines, Setting::MTMode}));
    const Settings later(path);
    EXPECT_FALSE(later.boolean(Setting::wrapLongLines));
    EXPECT_EQ(later.integer(Setting::MTMode), 4);
}

TEST_F(LiveSettingsTest, KeepTheNewestFilesOnce)
{
    RecentFiles recent(settings);
    EXPECT_EQ(recent.paths(), QStringList());
    QStringList many;
    for (int i = 0; i < 20; ++i)
        many.append(QStringLiteral("/f/%1, \"%1\"\n").arg(i));
    recent.note(many);
    EXPECT_EQ(recent.paths(), many.mid(0, RecentFiles::kMost));
    recent.note({many[3]});
    EXPECT_EQ(recent.paths().mid(0, 3), (QStringList{many[3], many[0], many[1]}));
    EXPECT_EQ(recent.paths().size(), RecentFiles::kMost);
    recent.clear();
    EXPECT_TRUE(recent.paths().isEmpty());
}

TEST_F(LiveSettingsTest, PreferencesSetThemAndFollowThem)
{
    settings.set(Setting::colorScheme, QStringLiteral("dark"));
    PreferencesWindowController window(settings);
    auto *scheme = window.findChild<QComboBox *>(QStringLiteral("colorScheme"));
    auto *size = window.findChild<QSpinBox *>(QStringLiteral("extFontSize"));
    auto *wraps = window.findChild<QCheckBox *>(QStringLiteral("wrapLongLines"));
    ASSERT_TRUE(scheme && size && wraps);
    EXPECT_EQ(scheme->currentData().toString(), QStringLiteral("dark"));
    EXPECT_TRUE(wraps->isChecked());

    changes.clear();
    settings.set(Setting::wrapLongLines, false);
    settings.set(Setting::extFontSize, 20);
    settings.set(Setting::colorScheme, QStringLiteral("light"));
    EXPECT_FALSE(wraps->isChecked());
    EXPECT_EQ(size->value(), 20);
    EXPECT_EQ(scheme->currentData().toString(), QStringLiteral("light"));
    EXPECT_EQ(changes.size(), 3U) << "a control that follows changes nothing";

    wraps->click();
    size->setValue(9);
    EXPECT_TRUE(values.boolean(Setting::wrapLongLines));
    EXPECT_EQ(values.integer(Setting::extFontSize), 9);
    settings.set(Setting::extFontSize, 1'000);
    EXPECT_EQ(values.integer(Setting::extFontSize), 9) << "no setting goes beyond its most";
}

TEST_F(LiveSettingsTest, OverridesCountForThisRunAlone)
{
    EXPECT_TRUE(settings.overrideFrom(QStringLiteral("MTMode=8")));
    EXPECT_FALSE(settings.overrideFrom(QStringLiteral("MTMode=many")));
    EXPECT_EQ(changes, std::vector{Setting::MTMode});
    EXPECT_EQ(Settings(path).integer(Setting::MTMode), 0);
}

TEST_F(LiveSettingsTest, DialogsBeginWhereTheLastOneEnded)
{
    const QString films = folder / QStringLiteral("films");
    QDir().mkpath(films);
    QFileDialog first;
    startInLastFolder(first, settings);
    EXPECT_EQ(first.directory().absolutePath(), QDir::homePath());
    first.setDirectory(films);
    Q_EMIT first.accepted();
    QFileDialog second;
    startInLastFolder(second, settings);
    EXPECT_EQ(second.directory().absolutePath(), films);
    second.setFileMode(QFileDialog::AnyFile);
    second.setOption(QFileDialog::DontUseNativeDialog);
    second.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(folder / QStringLiteral("typed"));
    Q_EMIT second.accepted();
    EXPECT_EQ(settings.string(Setting::lastFolder), QFileInfo(films).path());
    settings.set(Setting::lastFolder, films);
    QDir(films).removeRecursively();
    QFileDialog third;
    startInLastFolder(third, settings);
    EXPECT_EQ(third.directory().absolutePath(), QDir::homePath()) << "it has gone";
}

TEST_F(LiveSettingsTest, PreferencesOfferToReadAgainWhatSettingsOfReadingChange)
{
    PreferencesWindowController window(settings);
    int wanted = 0;
    QObject::connect(&window, &PreferencesWindowController::readAgainWanted, [&wanted] { ++wanted; });
    QPushButton *again = nullptr;
    for (auto *button : window.findChildren<QPushButton *>()) {
        if (button->text() == QStringLiteral("Read Again"))
            again = button;
    }
    ASSERT_TRUE(again);
    window.findChild<QCheckBox *>(QStringLiteral("wrapLongLines"))->click();
    EXPECT_FALSE(again->isVisibleTo(&window)) << "seen at once";
    window.findChild<QComboBox *>(QStringLiteral("useSIUnits"))->setCurrentIndex(1);
    Q_EMIT window.findChild<QComboBox *>(QStringLiteral("useSIUnits"))->activated(1);
    EXPECT_FALSE(values.boolean(Setting::useSIUnits));
    EXPECT_TRUE(again->isVisibleTo(&window));
    again->click();
    EXPECT_EQ(wanted, 1);
    EXPECT_FALSE(again->isVisibleTo(&window));
}

TEST_F(LiveSettingsTest, PreferencesResetTheTabThatIsShown)
{
    settings.set(Setting::enableExperimentalPreferences, true);
    settings.set(Setting::extFontSize, 20);
    settings.set(Setting::readerCpuSeconds, 7);
    PreferencesWindowController window(settings);
    auto *tabs = window.findChild<QTabWidget *>();
    ASSERT_EQ(tabs->count(), 2);
    auto *reset = window.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::RestoreDefaults);
    tabs->setCurrentIndex(1);
    reset->click();
    EXPECT_EQ(settings.integer(Setting::readerCpuSeconds), 20);
    EXPECT_EQ(settings.integer(Setting::extFontSize), 20) << "stands on the other tab";
    tabs->setCurrentIndex(0);
    reset->click();
    EXPECT_EQ(settings.integer(Setting::extFontSize), 12);
    EXPECT_EQ(tabs->count(), 1) << "a new user has no advanced preferences";
}

TEST_F(LiveSettingsTest, PreferencesOfferWhatTheSettingsTake)
{
    settings.set(Setting::enableExperimentalPreferences, true);
    const PreferencesWindowController window(settings);
    for (const SettingRow &row : settingsTable()) {
        const QString name = row.key;
        if (const auto *choice = window.findChild<QComboBox *>(name)) {
            for (int i = 0; i < choice->count(); ++i)
                EXPECT_TRUE(settingFromText(row, choice->itemData(i).toString())) << row.key.data() << i;
        }
        if (const auto *number = window.findChild<QSpinBox *>(name)) {
            EXPECT_EQ(number->minimum(), row.least) << row.key.data();
            EXPECT_EQ(number->maximum(), row.most) << row.key.data();
        }
    }
}

} // namespace quorvin
