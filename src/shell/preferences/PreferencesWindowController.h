// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <functional>

class QFormLayout;
class QTabWidget;

namespace quorvin {

class LibraryVersions;
class LiveSettings;
enum class PreferencePage;
enum class Setting;
struct PreferenceRow;

/// The settings, as controls that take effect at once and follow what changes elsewhere. The advanced ones
/// have a page of their own, which is there while a setting wants it. Main thread.
class PreferencesWindowController : public QDialog {
    Q_OBJECT
public:
    /// `settings` must outlive the window, which goes when it is closed.
    explicit PreferencesWindowController(LiveSettings &settings);

Q_SIGNALS:
    /// Files that are shown are to be read once more, as the settings are now.
    void readAgainWanted();

private:
    QWidget *makePage(PreferencePage page);
    QWidget *makeNote();
    void showAdvanced();
    void settingDidChange(Setting setting);
    void addRow(QFormLayout *form, const PreferenceRow &row);
    QWidget *choiceOf(const PreferenceRow &row);
    QWidget *numberOf(const PreferenceRow &row);
    QWidget *switchOf(const PreferenceRow &row);
    /// Shows the setting as it is, now and whenever it changes; `control` says no word of that.
    void follow(const PreferenceRow &row, QWidget *control, const std::function<void()> &show);
    void resetPage();

    LiveSettings &_settings;
    QTabWidget *_tabs;
    QWidget *_advanced = nullptr;
    QWidget *_note; ///< that files were read before the last change
    LibraryVersions *_versions;
};

} // namespace quorvin
