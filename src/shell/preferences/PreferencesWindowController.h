// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QFormLayout;
class QLabel;
class QTabWidget;

namespace quorvin {

class AppController;
struct PreferenceRow;

/// The settings, as controls that take effect at once. Main thread.
class PreferencesWindowController : public QDialog {
    Q_OBJECT
public:
    /// The one window, made on demand; it goes when it is closed.
    static PreferencesWindowController *controller(AppController &application);

private:
    explicit PreferencesWindowController(AppController &application);

    void addPage(const QString &title, int page);
    void addRow(QFormLayout *form, const PreferenceRow &row);
    /// Fills the label of the libraries' versions, the first time that it is seen.
    void clickAdvanced();

    AppController &_application;
    QTabWidget *_tabs;
    QLabel *_version;
};

} // namespace quorvin
