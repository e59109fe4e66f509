// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/AttachmentController.h"

#include "intake/AnalysisOptions.h"
#include "platform/AtomicFile.h"
#include "platform/NativePath.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/session/LastFolder.h"
#include "shell/session/LiveSettings.h"

#include <QFileDialog>

#include <memory>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kMostProblems = 5; ///< told one by one

} // namespace

AttachmentController::AttachmentController(LiveSettings &settings, QWidget *window)
    : QObject(window), _settings(settings), _window(window)
{
}

void AttachmentController::extractAttachments(const QString &path)
{
    auto *dialog = new QFileDialog(_window, tr("Select folder to save the files"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    startInLastFolder(*dialog, _settings);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setLabelText(QFileDialog::Accept, tr("Select"));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, path](const QString &folder) { saveTo(path, folder); });
    dialog->open();
}

void AttachmentController::saveTo(const QString &path, const QString &folder)
{
    const AnalysisSetup setup
        = analysisSetupFrom(_settings.values(), std::make_shared<RootSet>(QStringList{path}));
    const Job job = setup.attachmentsOf(path, folder);
    _run.start(
        "Attachments",
        [setup, job, folder](const RunControl &control) -> Expected<SavedFiles> {
            const JobResult result = setup.makeRunner()->run(job, control.stop());
            if (result)
                return std::get<SavedFiles>(*result);
            AtomicFile::removeLeftovers(folder);
            return tl::unexpected(result.error());
        },
        [this, path](const Expected<SavedFiles> &files) { tell(path, files); });
}

void AttachmentController::tell(const QString &path, const Expected<SavedFiles> &files)
{
    const QString name = lastPathComponent(path);
    QStringList problems;
    if (!files)
        problems.append(files.error().description);
    else
        problems.append({files->problems.begin(), files->problems.end()});
    if (!problems.isEmpty()) {
        const qsizetype more = problems.size() - kMostProblems;
        problems = problems.mid(0, kMostProblems);
        if (more > 0)
            problems.append(tr("and %1 more").arg(groupedCount(more)));
        plainMessage(_window, tr("Save Attachments"),
                     tr("The attachments of “%1” are not complete.").arg(name), problems.join(u'\n'),
                     QMessageBox::Close)
            ->open();
        return;
    }
    if (files->paths.empty())
        Q_EMIT saved(tr("Nothing is attached to “%1”.").arg(name), {});
    else if (files->paths.size() == 1)
        Q_EMIT saved(tr("Saved “%1”.").arg(lastPathComponent(files->paths.front())), files->paths.front());
    else
        Q_EMIT saved(
            tr("Saved %1 attachments.").arg(groupedCount(static_cast<qsizetype>(files->paths.size()))),
            files->paths.front());
}

} // namespace quorvin
