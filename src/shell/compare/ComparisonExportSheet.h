// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QComboBox;

namespace quorvin {

class LiveSettings;

/// Asks in which format a comparison is to be written. Starts from that of the last time and keeps the one
/// that is chosen. Main thread.
class ComparisonExportSheet final : public QDialog {
    Q_OBJECT
public:
    /// `settings` must outlive the sheet.
    ComparisonExportSheet(LiveSettings &settings, QWidget *parent);

    /// A key of `ComparisonExport::formats`.
    QString format() const;
    void accept() override;

private:
    LiveSettings &_settings;
    QComboBox *_formatPopup;
};

} // namespace quorvin
