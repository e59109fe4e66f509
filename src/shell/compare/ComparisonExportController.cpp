// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonExportController.h"

#include "comparison/ComparisonExport.h"
#include "platform/AtomicFile.h"
#include "shell/compare/ComparisonExportSheet.h"
#include "shell/desktop/PlainText.h"
#include "shell/session/FileDialogs.h"

#include <QFileDialog>

#include <memory>
#include <utility>

namespace quorvin {

Expected<void> writeComparison(const ComparisonDocument &document)
{
    return writeWhole(document.path, [&](QIODevice &device) {
        return ComparisonExport::write(document.format, document.content, document.description, device);
    });
}

ComparisonExportController::ComparisonExportController(LiveSettings &settings, QWidget *window)
    : QObject(window), _settings(settings), _window(window)
{
}

void ComparisonExportController::exportComparison(ComparisonContent content, QStringList description)
{
    _document.content = std::move(content);
    _document.description = std::move(description);
    auto *sheet = new ComparisonExportSheet(_settings, _window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &ComparisonExportSheet::accepted, this, [this, sheet] { choosePlace(sheet->format()); });
    connect(sheet, &ComparisonExportSheet::rejected, this, [this] { _document = {}; });
    sheet->open();
}

void ComparisonExportController::choosePlace(const QString &format)
{
    _document.format = format;
    auto *dialog = makeExportDialog(_window, tr("Export Comparison"), _settings,
                                    QStringLiteral("Quorvin Comparison"), format);
    connect(dialog, &QFileDialog::fileSelected, this, &ComparisonExportController::start);
    connect(dialog, &QFileDialog::rejected, this, [this] { _document = {}; });
    dialog->open();
}

void ComparisonExportController::start(const QString &path)
{
    if (_run.isUnderWay())
        return;
    _document.path = path;
    const auto document = std::make_shared<const ComparisonDocument>(std::exchange(_document, {}));
    _run.start(
        "CompareExport",
        [document](const RunControl &) {
            const auto written = writeComparison(*document);
            return written ? QString() : tr("%1: %2").arg(document->path, written.error().description);
        },
        [this, path](const QString &problem) {
            if (problem.isEmpty())
                return Q_EMIT exported(path);
            plainMessage(_window, tr("Export Comparison"), tr("The comparison could not be written."),
                         problem, QMessageBox::Close)
                ->open();
        });
}

} // namespace quorvin
