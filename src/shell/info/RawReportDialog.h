// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "shell/desktop/BackgroundRun.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QPlainTextEdit;

namespace quorvin {

class Settings;

/// What the libraries say of one file, as it comes. They are asked in a guarded process, and the dialog waits
/// for none. Main thread.
class RawReportDialog final : public QDialog {
    Q_OBJECT
public:
    /// Letters of a report that are shown; a report can be larger than any view holds.
    static constexpr qsizetype kMostLetters = 1'000'000;

    /// Asks at once. `settings` must outlive the program's threads. Goes when it is closed.
    RawReportDialog(const Settings &settings, const QString &path, QWidget *parent);

private:
    void ask();
    void take(const Expected<QString> &report);

    const Settings &_settings;
    QString _path;
    QComboBox *_source;
    QLabel *_state;
    QPlainTextEdit *_text;
    BackgroundRun<Expected<QString>> _run;
};

} // namespace quorvin
