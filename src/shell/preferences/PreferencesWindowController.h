// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <functional>

class QFormLayout;
class QLabel;
class QTabWidget;

namespace quorvin {

class LiveSettings;
enum class Setting;
struct PreferenceRow;

/// The settings, as controls that take effect at once and follow what changes elsewhere. Main thread.
class PreferencesWindowController : public QDialog {
    Q_OBJECT
public:
    /// `settings` must outlive the window, which goes when it is closed.
    explicit PreferencesWindowController(LiveSettings &settings);

private:
    void addPage(const QString &title, int page);
    void addRow(QFormLayout *form, const PreferenceRow &row);
    QWidget *choiceOf(const PreferenceRow &row);
    QWidget *numberOf(const PreferenceRow &row);
    QWidget *switchOf(const PreferenceRow &row);
    /// Shows the setting as it is, now and whenever it changes; `control` says no word of that.
    void follow(Setting setting, QWidget *control, const std::function<void()> &show);
    /// Fills the label of the libraries' versions, the first time that it is seen.
    void clickAdvanced();

    LiveSettings &_settings;
    QTabWidget *_tabs;
    QLabel *_version;
};

} // namespace quorvin
