// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/exporting/ExportController.h"

#include "platform/NativePath.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/exporting/ExportSheet.h"
#include "shell/session/FileDialogs.h"

#include <QFileDialog>

#include <memory>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kMostFailures = 5; ///< told one by one

/// What the one document is called at first.
QString presetName(const std::vector<ExportEntry> &entries)
{
    return entries.size() == 1 ? pathStem(entries.front().filename) : QStringLiteral("Quorvin Export");
}

} // namespace

ExportController::ExportController(LiveSettings &settings, QWidget *window)
    : QObject(window), _settings(settings), _window(window)
{
}

void ExportController::menuExportNew(std::vector<ExportEntry> entries, std::size_t asked)
{
    if (entries.empty())
        return tellFailures({tr("None of the files could be read, so there is nothing to export.")});
    _entries = std::move(entries);
    auto *sheet = new ExportSheet(_settings, _entries.size(), asked, _window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &ExportSheet::accepted, this, [this, sheet] { choosePlace(*sheet); });
    connect(sheet, &ExportSheet::rejected, this, [this] { _entries.clear(); });
    sheet->open();
}

void ExportController::choosePlace(const ExportSheet &sheet)
{
    ExportTask task;
    task.exporter.setFormat(sheet.format());
    task.exporter.setSkipFilePrivate(sheet.skipFilePrivate());
    task.entries = std::exchange(_entries, {});
    task.toFolder = !sheet.compound() && task.entries.size() > 1;
    if (task.toFolder)
        chooseFolder(std::move(task));
    else
        chooseFile(std::move(task));
}

void ExportController::chooseFile(ExportTask task)
{
    QFileDialog *dialog = makeExportDialog(_window, tr("Export"), _settings, presetName(task.entries),
                                           QuorvinExporter::extensionForExportFormat(task.exporter.format()));
    connect(dialog, &QFileDialog::fileSelected, this, [this, task = std::move(task)](const QString &path) {
        ExportTask chosen = task;
        chosen.path = path;
        start(std::move(chosen));
    });
    dialog->open();
}

void ExportController::chooseFolder(ExportTask task)
{
    QFileDialog *dialog
        = makeFolderDialog(_window, tr("Select folder to save the files"), _settings, tr("Select"));
    connect(dialog, &QFileDialog::fileSelected, this, [this, task = std::move(task)](const QString &path) {
        ExportTask chosen = task;
        chosen.path = path;
        start(std::move(chosen));
    });
    dialog->open();
}

void ExportController::start(ExportTask task)
{
    if (_run.isUnderWay())
        return;
    const auto shared = std::make_shared<const ExportTask>(std::move(task));
    _run.start(
        "Export", [shared](const RunControl &control) { return writeExport(*shared, control); },
        [this, shared](const QStringList &failures) {
            if (failures.isEmpty())
                Q_EMIT exported(*shared);
            else
                tellFailures(failures);
        });
}

void ExportController::tellFailures(const QStringList &failures)
{
    QStringList told = failures.mid(0, kMostFailures);
    if (const qsizetype more = failures.size() - told.size(); more > 0)
        told.append(tr("and %1 more").arg(groupedCount(more)));
    plainMessage(_window, tr("Export"), tr("The export is not complete."), told.join(u'\n'),
                 QMessageBox::Close)
        ->open();
}

} // namespace quorvin
