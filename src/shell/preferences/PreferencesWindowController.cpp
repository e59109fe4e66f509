// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/preferences/PreferencesWindowController.h"

#include "shell/desktop/PlainText.h"
#include "shell/preferences/LibraryVersions.h"
#include "shell/preferences/PreferencesTable.h"
#include "shell/session/LiveSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kMargin = 16;

QString translated(const char *text)
{
    return text ? QCoreApplication::translate("Preferences", text) : QString();
}

QLabel *headingLabel(const QString &text)
{
    QLabel *label = plainLabel(text);
    QFont strong = label->font();
    strong.setWeight(QFont::DemiBold);
    label->setFont(strong);
    label->setContentsMargins(0, kMargin / 2, 0, 0);
    return label;
}

QPushButton *plainButton(QDialogButtonBox *buttons, QDialogButtonBox::StandardButton kind,
                         const QString &text)
{
    QPushButton *button = buttons->button(kind);
    button->setText(text);
    button->setIcon({});
    button->setAutoDefault(false);
    return button;
}

bool concernsReading(Setting setting)
{
    return std::ranges::any_of(preferenceSections(), [setting](const PreferenceSection &section) {
        // How many files are read at a time changes nothing in them.
        return section.concernsReading && setting != Setting::MTMode
            && std::ranges::find(section.rows, setting, &PreferenceRow::setting) != section.rows.end();
    });
}

} // namespace

PreferencesWindowController::PreferencesWindowController(LiveSettings &settings)
    : _settings(settings), _tabs(new QTabWidget), _note(makeNote()), _versions(new LibraryVersions)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Preferences"));
    // Pages as dark as the dialog.
    _tabs->setDocumentMode(true);
    _tabs->addTab(makePage(PreferencePage::General), tr("General"));
    _advanced = makePage(PreferencePage::Advanced);
    _advanced->setParent(this);
    _advanced->hide();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close | QDialogButtonBox::RestoreDefaults);
    plainButton(buttons, QDialogButtonBox::Close, tr("Close"));
    QPushButton *reset = plainButton(buttons, QDialogButtonBox::RestoreDefaults, tr("Reset This Tab"));
    reset->setToolTip(plainTip(tr("Set all that this tab shows back to what it is for a new user")));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(reset, &QPushButton::clicked, this, &PreferencesWindowController::resetPage);
    auto *column = new QVBoxLayout(this);
    column->addWidget(_tabs);
    column->addWidget(_note);
    column->addWidget(buttons);
    connect(&_settings, &LiveSettings::changed, this, &PreferencesWindowController::settingDidChange);
    connect(_tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (_tabs->widget(index) == _advanced)
            _versions->ask();
    });
    showAdvanced();
}

QWidget *PreferencesWindowController::makePage(PreferencePage page)
{
    auto *content = new QWidget;
    auto *form = new QFormLayout(content);
    form->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    for (const PreferenceSection &section : preferenceSections()) {
        if (section.page != page)
            continue;
        form->addRow(headingLabel(translated(section.heading)));
        for (const PreferenceRow &row : section.rows)
            addRow(form, row);
    }
    if (page == PreferencePage::Advanced) {
        form->addRow(headingLabel(tr("Libraries")));
        form->addRow(_versions);
    }
    return content;
}

QWidget *PreferencesWindowController::makeNote()
{
    auto *note = new QWidget;
    auto *line = new QHBoxLayout(note);
    line->setContentsMargins(kMargin, 0, kMargin, 0);
    QLabel *text = plainLabel(tr("Files that were read before this change show what they showed."));
    text->setWordWrap(true);
    auto *again = new QPushButton(tr("Read Again"));
    again->setAutoDefault(false);
    again->setAccessibleDescription(tr("Read all files of all windows once more"));
    line->addWidget(text, 1);
    line->addWidget(again);
    note->hide();
    connect(again, &QPushButton::clicked, this, [this] {
        _note->hide();
        Q_EMIT readAgainWanted();
    });
    return note;
}

void PreferencesWindowController::showAdvanced()
{
    const bool isWanted = _settings.boolean(Setting::enableExperimentalPreferences);
    const int index = _tabs->indexOf(_advanced);
    if (isWanted && index < 0)
        _tabs->addTab(_advanced, tr("Advanced"));
    else if (!isWanted && index >= 0)
        _tabs->removeTab(index);
}

void PreferencesWindowController::settingDidChange(Setting setting)
{
    if (setting == Setting::enableExperimentalPreferences)
        showAdvanced();
    else if (concernsReading(setting))
        _note->show();
}

void PreferencesWindowController::resetPage()
{
    const auto page
        = _tabs->currentWidget() == _advanced ? PreferencePage::Advanced : PreferencePage::General;
    for (const PreferenceSection &section : preferenceSections()) {
        if (section.page != page)
            continue;
        for (const PreferenceRow &row : section.rows)
            _settings.reset(row.setting);
    }
}

void PreferencesWindowController::addRow(QFormLayout *form, const PreferenceRow &row)
{
    if (!row.choices.empty())
        form->addRow(translated(row.label), choiceOf(row));
    else if (settingRow(row.setting).type == SettingType::Integer)
        form->addRow(translated(row.label), numberOf(row));
    else
        form->addRow(QString(), switchOf(row));
    if (const char *obstacle = row.obstacle ? row.obstacle() : nullptr)
        form->addRow(QString(), plainLabel(translated(obstacle)));
}

QWidget *PreferencesWindowController::choiceOf(const PreferenceRow &row)
{
    auto *box = new QComboBox;
    for (const PreferenceChoice &choice : row.choices)
        box->addItem(translated(choice.label), QString::fromLatin1(choice.value));
    follow(row, box, [this, box, setting = row.setting] {
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
    box->setSuffix(translated(row.unit));
    box->setGroupSeparatorShown(true);
    // A number that is still being typed is none yet.
    box->setKeyboardTracking(false);
    follow(row, box, [this, box, setting = row.setting] { box->setValue(_settings.integer(setting)); });
    connect(box, &QSpinBox::valueChanged, this,
            [this, setting = row.setting](int value) { _settings.set(setting, value); });
    return box;
}

QWidget *PreferencesWindowController::switchOf(const PreferenceRow &row)
{
    auto *box = new QCheckBox(translated(row.label));
    follow(row, box, [this, box, setting = row.setting] { box->setChecked(_settings.boolean(setting)); });
    connect(box, &QCheckBox::toggled, this,
            [this, setting = row.setting](bool on) { _settings.set(setting, on); });
    return box;
}

void PreferencesWindowController::follow(const PreferenceRow &row, QWidget *control,
                                         const std::function<void()> &show)
{
    control->setObjectName(QString(settingRow(row.setting).key));
    control->setAccessibleName(translated(row.label).remove(u':'));
    if (row.tip)
        control->setToolTip(plainTip(translated(row.tip)));
    show();
    connect(&_settings, &LiveSettings::changed, control,
            [control, setting = row.setting, show](Setting changed) {
                const QSignalBlocker silence(control);
                if (changed == setting)
                    show();
            });
}

} // namespace quorvin
