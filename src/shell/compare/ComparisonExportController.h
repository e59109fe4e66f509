// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "comparison/ComparisonRows.h"
#include "model/Error.h"
#include "shell/desktop/BackgroundRun.h"

#include <QObject>
#include <QStringList>

class QWidget;

namespace quorvin {

class LiveSettings;

/// A comparison as it is shown, to be written.
struct ComparisonDocument {
    QString format; ///< a key of `ComparisonExport::formats`
    QString path;
    ComparisonContent content;
    QStringList description;
};

/// Writes the document, whole or not at all. The error has the reason. Any thread.
Expected<void> writeComparison(const ComparisonDocument &document);

/// Takes a comparison through its export: the sheet with the formats, the place, and why it could not be
/// written. Main thread.
class ComparisonExportController : public QObject {
    Q_OBJECT
public:
    /// `settings` must outlive this object, which belongs to `window`.
    ComparisonExportController(LiveSettings &settings, QWidget *window);

    /// Shows the sheet for this comparison.
    void exportComparison(ComparisonContent content, QStringList description);
    /// The export that is under way.
    BackgroundRunBase &run() { return _run; }

Q_SIGNALS:
    /// All of it is written.
    void exported(const QString &path);

private:
    void choosePlace(const QString &format);
    void start(const QString &path);

    LiveSettings &_settings;
    QWidget *_window;
    ComparisonDocument _document; ///< of the sheet that is open
    BackgroundRun<QString> _run{this};
};

} // namespace quorvin
