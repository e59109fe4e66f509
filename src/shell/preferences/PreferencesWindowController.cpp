// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/preferences/PreferencesWindowController.h"

#include "readers/mediainfo/oMediaInfo.h"
#include "shell/desktop/PlainText.h"
#include "shell/session/LiveSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include <array>
#include <span>

namespace quorvin {

struct PreferenceChoice {
    const char *label;
    const char *value; ///< as the setting is written
};

struct PreferenceRow {
    Setting setting;
    int page;
    const char *label;
    std::span<const PreferenceChoice> choices; ///< none: a box to tick, or a number within the setting's ends
};

namespace {

constexpr int kGeneral = 0;
constexpr int kAdvanced = 1;

#define TEXT(text) QT_TRANSLATE_NOOP("Preferences", text)

constexpr std::array kSchemes{
    PreferenceChoice{TEXT("As the desktop"), "system"},
    PreferenceChoice{TEXT("Light"), "light"},
    PreferenceChoice{TEXT("Dark"), "dark"},
};
constexpr std::array kTabs{
    PreferenceChoice{TEXT("The last one"), "0"}, PreferenceChoice{TEXT("General"), "1"},
    PreferenceChoice{TEXT("Extended"), "2"},     PreferenceChoice{TEXT("Comparison"), "3"},
    PreferenceChoice{TEXT("Custom"), "4"},
};
constexpr std::array kSides{
    PreferenceChoice{TEXT("At the start of the line"), "0"},
    PreferenceChoice{TEXT("At the end of the line"), "1"},
};
constexpr std::array kReaders{
    PreferenceChoice{"MediaInfo", "mediainfo"},
    PreferenceChoice{"ExifTool", "exiftool"},
};
constexpr std::array kThreads{
    PreferenceChoice{TEXT("One file at a time"), "0"},
    PreferenceChoice{TEXT("Two"), "2"},
    PreferenceChoice{TEXT("Four"), "4"},
    PreferenceChoice{TEXT("Eight"), "8"},
    PreferenceChoice{TEXT("One for each core"), "256"},
};

constexpr std::array kRows{
    PreferenceRow{Setting::colorScheme, kGeneral, TEXT("Colours:"), kSchemes},
    PreferenceRow{Setting::openTab, kGeneral, TEXT("New windows show:"), kTabs},
    PreferenceRow{Setting::sidebarPos, kGeneral, TEXT("File list:"), kSides},
    PreferenceRow{Setting::extFontSize, kGeneral, TEXT("Size of text in trees:"), {}},
    PreferenceRow{Setting::extRowHeight, kGeneral, TEXT("Height of rows in trees:"), {}},
    PreferenceRow{Setting::wrapLongLines, kGeneral, TEXT("Wrap long lines"), {}},
    PreferenceRow{Setting::extParameterRightAlign, kGeneral, TEXT("Put names next to their values"), {}},
    PreferenceRow{Setting::useSIUnits, kGeneral, TEXT("Sizes in decimal units (1 KB is 1000 bytes)"), {}},
    PreferenceRow{
        Setting::displayOtherTracksInGeneral, kGeneral, TEXT("Other tracks on the General tab"), {}},
    PreferenceRow{Setting::useSystemMetadata, kGeneral, TEXT("Tags, comments and origin of files"), {}},
    PreferenceRow{Setting::computeFileHashes, kGeneral, TEXT("MD5 and SHA-1 of files (slow)"), {}},
    PreferenceRow{Setting::terminateAppWhenAllWindowsClosed, kGeneral, TEXT("Quit with the last window"), {}},
    PreferenceRow{Setting::MTMode, kAdvanced, TEXT("Files read at the same time:"), kThreads},
    PreferenceRow{Setting::videoUtility, kAdvanced, TEXT("Audio and video are read by:"), kReaders},
    PreferenceRow{Setting::useSlowThumbProcessing, kAdvanced, TEXT("Make covers from the whole picture"), {}},
    PreferenceRow{Setting::readerProcesses, kAdvanced, TEXT("Read files in guarded processes"), {}},
    PreferenceRow{Setting::readerCpuSeconds, kAdvanced, TEXT("Most seconds of work on a file:"), {}},
    PreferenceRow{Setting::readerWallSeconds, kAdvanced, TEXT("Most seconds on a file:"), {}},
    PreferenceRow{Setting::readerMemoryMiB, kAdvanced, TEXT("Most memory for a file (MiB):"), {}},
    PreferenceRow{Setting::debugDataCacher, kAdvanced, TEXT("Log what the readers do"), {}},
    PreferenceRow{Setting::debugStalls, kAdvanced, TEXT("Log what holds up the window"), {}},
};

#undef TEXT

QString translated(const char *text)
{
    return QCoreApplication::translate("Preferences", text);
}

} // namespace

PreferencesWindowController::PreferencesWindowController(LiveSettings &settings)
    : _settings(settings), _tabs(new QTabWidget), _version(plainLabel())
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Preferences"));
    auto *column = new QVBoxLayout(this);
    // Pages as dark as the dialog.
    _tabs->setDocumentMode(true);
    column->addWidget(_tabs);
    addPage(tr("General"), kGeneral);
    if (settings.boolean(Setting::enableExperimentalPreferences))
        addPage(tr("Advanced"), kAdvanced);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setIcon({});
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    column->addWidget(buttons);
    connect(_tabs, &QTabWidget::currentChanged, this, [this](int page) {
        if (page == kAdvanced)
            clickAdvanced();
    });
}

void PreferencesWindowController::addPage(const QString &title, int page)
{
    auto *content = new QWidget;
    auto *form = new QFormLayout(content);
    form->setContentsMargins(16, 16, 16, 16);
    for (const PreferenceRow &row : kRows) {
        if (row.page == page)
            addRow(form, row);
    }
    if (page == kAdvanced)
        form->addRow(_version);
    _tabs->addTab(content, title);
}

void PreferencesWindowController::addRow(QFormLayout *form, const PreferenceRow &row)
{
    if (!row.choices.empty())
        form->addRow(translated(row.label), choiceOf(row));
    else if (settingRow(row.setting).type == SettingType::Integer)
        form->addRow(translated(row.label), numberOf(row));
    else
        form->addRow(QString(), switchOf(row));
}

QWidget *PreferencesWindowController::choiceOf(const PreferenceRow &row)
{
    auto *box = new QComboBox;
    for (const PreferenceChoice &choice : row.choices)
        box->addItem(translated(choice.label), QString::fromLatin1(choice.value));
    follow(row.setting, box, [this, box, setting = row.setting] {
        box->setCurrentIndex(std::max(box->findData(_settings.text(setting)), 0));
    });
    connect(box, &QComboBox::activated, this,
            [this, box, setting = row.setting] { _settings.set(setting, box->currentData()); });
    return box;
}

QWidget *PreferencesWindowController::numberOf(const PreferenceRow &row)
{
    auto *box = new QSpinBox;
    const SettingRow &limits = settingRow(row.setting);
    box->setRange(static_cast<int>(limits.least), static_cast<int>(limits.most));
    follow(row.setting, box,
           [this, box, setting = row.setting] { box->setValue(_settings.integer(setting)); });
    connect(box, &QSpinBox::valueChanged, this,
            [this, setting = row.setting](int value) { _settings.set(setting, value); });
    return box;
}

QWidget *PreferencesWindowController::switchOf(const PreferenceRow &row)
{
    auto *box = new QCheckBox(translated(row.label));
    follow(row.setting, box,
           [this, box, setting = row.setting] { box->setChecked(_settings.boolean(setting)); });
    connect(box, &QCheckBox::toggled, this,
            [this, setting = row.setting](bool on) { _settings.set(setting, on); });
    return box;
}

void PreferencesWindowController::follow(Setting setting, QWidget *control, const std::function<void()> &show)
{
    control->setObjectName(QString(settingsTable()[static_cast<std::size_t>(setting)].key));
    show();
    connect(&_settings, &LiveSettings::changed, control, [control, setting, show](Setting changed) {
        const QSignalBlocker silence(control);
        if (changed == setting)
            show();
    });
}

void PreferencesWindowController::clickAdvanced()
{
    if (!_version->text().isEmpty())
        return;
    _version->setText(oMediaInfo::libVersion());
    auto *exiftool = new QProcess(_version);
    connect(exiftool, &QProcess::finished, _version, [label = _version, exiftool] {
        const QString version = QString::fromUtf8(exiftool->readAllStandardOutput()).trimmed();
        if (!version.isEmpty())
            label->setText(QStringLiteral("%1, exiftool - v%2").arg(oMediaInfo::libVersion(), version));
    });
    exiftool->start(QStringLiteral("exiftool"), {QStringLiteral("-ver")});
}

} // namespace quorvin
