// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/ExtractionController.h"

#include "intake/AnalysisOptions.h"
#include "platform/AtomicFile.h"
#include "platform/NativePath.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/session/LastFolder.h"
#include "shell/session/Session.h"

#include <QFileDialog>

#include <memory>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kMostProblems = 5; ///< told one by one

/// What is said of one kind; "%1" is the name of the file, or how many were saved.
struct ExtractionWords {
    const char *title;
    const char *progress;
    const char *incomplete;
    const char *nothing;
    const char *saved;
};

const ExtractionWords &wordsOf(ExtractionController::Kind kind)
{
    static constexpr ExtractionWords kAttachments{
        QT_TRANSLATE_NOOP("ExtractionController", "Save Attachments"),
        QT_TRANSLATE_NOOP("ExtractionController", "Saving attachments"),
        QT_TRANSLATE_NOOP("ExtractionController", "The attachments of “%1” are not complete."),
        QT_TRANSLATE_NOOP("ExtractionController", "Nothing is attached to “%1”."),
        QT_TRANSLATE_NOOP("ExtractionController", "Saved %1 attachments."),
    };
    static constexpr ExtractionWords kPictures{
        QT_TRANSLATE_NOOP("ExtractionController", "Save Embedded Pictures"),
        QT_TRANSLATE_NOOP("ExtractionController", "Saving pictures"),
        QT_TRANSLATE_NOOP("ExtractionController", "The pictures in “%1” are not complete."),
        QT_TRANSLATE_NOOP("ExtractionController", "There are no pictures in “%1”."),
        QT_TRANSLATE_NOOP("ExtractionController", "Saved %1 pictures."),
    };
    return kind == ExtractionController::Kind::Pictures ? kPictures : kAttachments;
}

} // namespace

ExtractionController::ExtractionController(Session &session, QWidget *window)
    : QObject(window), _session(session), _window(window)
{
}

QString ExtractionController::progressText() const
{
    return tr(wordsOf(_kind).progress);
}

void ExtractionController::extract(const QString &path, Kind kind)
{
    auto *dialog = new QFileDialog(_window, tr("Select folder to save the files"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    startInLastFolder(*dialog, _session.settings);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setLabelText(QFileDialog::Accept, tr("Select"));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, path, kind](const QString &folder) { saveTo(path, folder, kind); });
    dialog->open();
}

void ExtractionController::saveTo(const QString &path, const QString &folder, Kind kind)
{
    start(path, folder, kind,
          [this, path, kind](const Expected<SavedFiles> &files) { tell(path, kind, files); });
}

void ExtractionController::displayCoversFrom(const QString &path)
{
    const auto folder = _session.temporaryFolders.makeFolder(QStringLiteral("_Previews"));
    if (!folder) {
        plainMessage(_window, tr(wordsOf(Kind::Pictures).title), tr("No temporary folder can be made."),
                     folder.error().description, QMessageBox::Close)
            ->open();
        return;
    }
    start(path, *folder, Kind::Pictures, [this, path, folder = *folder](const Expected<SavedFiles> &files) {
        if (!files || files->paths.empty())
            return tell(path, Kind::Pictures, files);
        Q_EMIT temporaryFilesSaved({files->paths.begin(), files->paths.end()}, folder);
    });
}

void ExtractionController::start(const QString &path, const QString &folder, Kind kind, Use use)
{
    _kind = kind;
    const AnalysisSetup setup
        = analysisSetupFrom(_session.settings.values(), std::make_shared<RootSet>(QStringList{path}));
    const Job job = setup.extractionOf(path, folder, kind);
    _run.start(
        "Extraction",
        [setup, job, folder](const RunControl &control) -> Expected<SavedFiles> {
            const JobResult result = setup.makeRunner()->run(job, control.stop());
            if (result)
                return std::get<SavedFiles>(*result);
            AtomicFile::removeLeftovers(folder);
            return tl::unexpected(result.error());
        },
        std::move(use));
}

bool ExtractionController::tellProblems(const QString &path, Kind kind, const Expected<SavedFiles> &files)
{
    QStringList problems;
    if (!files)
        problems.append(files.error().description);
    else
        problems.append({files->problems.begin(), files->problems.end()});
    if (problems.isEmpty())
        return false;
    const qsizetype more = problems.size() - kMostProblems;
    problems = problems.mid(0, kMostProblems);
    if (more > 0)
        problems.append(tr("and %1 more").arg(groupedCount(more)));
    plainMessage(_window, tr(wordsOf(kind).title), tr(wordsOf(kind).incomplete).arg(lastPathComponent(path)),
                 problems.join(u'\n'), QMessageBox::Close)
        ->open();
    return true;
}

void ExtractionController::tell(const QString &path, Kind kind, const Expected<SavedFiles> &files)
{
    if (tellProblems(path, kind, files))
        return;
    const auto count = static_cast<qsizetype>(files->paths.size());
    if (count == 0)
        Q_EMIT saved(tr(wordsOf(kind).nothing).arg(lastPathComponent(path)), {});
    else if (count == 1)
        Q_EMIT saved(tr("Saved “%1”.").arg(lastPathComponent(files->paths.front())), files->paths.front());
    else
        Q_EMIT saved(tr(wordsOf(kind).saved).arg(groupedCount(count)), files->paths.front());
}

} // namespace quorvin
