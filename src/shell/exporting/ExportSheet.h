// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QRadioButton;

namespace quorvin {

class LiveSettings;

/// Asks how to export: format, one document or one for each file, and with or without private facts. Starts
/// from the settings of the last export and keeps what was chosen there. Main thread.
class ExportSheet : public QDialog {
    Q_OBJECT
public:
    /// `settings` must outlive the sheet. With one file there is one document whatever is chosen. `asked` is
    /// how many files were meant, of which only `fileCount` can be written.
    ExportSheet(LiveSettings &settings, std::size_t fileCount, std::size_t asked, QWidget *parent);

    QString format() const;
    bool compound() const;
    bool skipFilePrivate() const;

    void accept() override;

private:
    LiveSettings &_settings;
    QComboBox *_format;
    QRadioButton *_compound;
    QRadioButton *_separate;
    QCheckBox *_skipFilePrivate;
};

} // namespace quorvin
