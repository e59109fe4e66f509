// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/ExtractionController.h"

#include "intake/AnalysisOptions.h"
#include "platform/AtomicFile.h"
#include "platform/NativePath.h"
#include "process/RootSet.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/session/FileDialogs.h"
#include "shell/session/Session.h"

#include <QFileDialog>

#include <memory>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kMostProblems = 5; ///< told one by one

/// What is said of one kind; "%1" is the file, or how many there are, or were saved.
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
        QT_TRANSLATE_NOOP("ExtractionController", "The attachments of %1 are not complete."),
        QT_TRANSLATE_NOOP("ExtractionController", "Nothing is attached to %1."),
        QT_TRANSLATE_NOOP("ExtractionController", "Saved %1 attachments."),
    };
    static constexpr ExtractionWords kPictures{
        QT_TRANSLATE_NOOP("ExtractionController", "Save Embedded Pictures"),
        QT_TRANSLATE_NOOP("ExtractionController", "Saving pictures"),
        QT_TRANSLATE_NOOP("ExtractionController", "The pictures in %1 are not complete."),
        QT_TRANSLATE_NOOP("ExtractionController", "There are no pictures in %1."),
        QT_TRANSLATE_NOOP("ExtractionController", "Saved %1 pictures."),
    };
    return kind == ExtractionController::Kind::Pictures ? kPictures : kAttachments;
}

QString nameOfFiles(const QStringList &paths)
{
    return paths.size() == 1 ? u'“' + lastPathComponent(paths.front()) + u'”' : countOfFiles(paths.size());
}

/// Adds what came of one file of several.
void appendSaved(const JobResult &result, const QString &path, bool isAlone, SavedFiles &all)
{
    const QString name = isAlone ? QString() : lastPathComponent(path) + QLatin1String(": ");
    if (!result) {
        all.problems.push_back(name + result.error().description);
        return;
    }
    const auto &files = std::get<SavedFiles>(*result);
    all.paths.insert(all.paths.end(), files.paths.begin(), files.paths.end());
    for (const QString &problem : files.problems)
        all.problems.push_back(name + problem);
}

/// One after the other.
SavedFiles savedOf(const AnalysisSetup &setup, const QStringList &paths, const QString &folder,
                   ExtractionRequest::Kind kind, const RunControl &control)
{
    SavedFiles all;
    const auto runner = setup.makeRunner();
    const int count = static_cast<int>(paths.size());
    for (int i = 0; i < count && !control.isStopped(); ++i) {
        control.report(i, count);
        const JobResult result = runner->run(setup.extractionOf(paths[i], folder, kind), control.stop());
        if (!result)
            AtomicFile::removeLeftovers(folder);
        appendSaved(result, paths[i], count == 1, all);
    }
    return all;
}

} // namespace

ExtractionController::ExtractionController(Session &session, QWidget *window)
    : QObject(window), _session(session), _window(window)
{
}

QString ExtractionController::progressText(int done, int total) const
{
    const QString text = tr(wordsOf(_kind).progress);
    return total > 1 ? tr("%1: %2 of %3").arg(text, groupedCount(done), groupedCount(total)) : text;
}

void ExtractionController::extract(const QStringList &paths, Kind kind)
{
    auto *dialog
        = makeFolderDialog(_window, tr("Select folder to save the files"), _session.settings, tr("Select"));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, paths, kind](const QString &folder) { saveTo(paths, folder, kind); });
    dialog->open();
}

void ExtractionController::saveTo(const QStringList &paths, const QString &folder, Kind kind)
{
    start(paths, folder, kind, [this, paths, kind](const SavedFiles &files) { tell(paths, kind, files); });
}

void ExtractionController::displayCoversFrom(const QStringList &paths)
{
    const auto folder = _session.temporaryFolders.makeFolder(QStringLiteral("_Previews"));
    if (!folder) {
        plainMessage(_window, tr(wordsOf(Kind::Pictures).title), tr("No temporary folder can be made."),
                     folder.error().description, QMessageBox::Close)
            ->open();
        return;
    }
    start(paths, *folder, Kind::Pictures, [this, paths, folder = *folder](const SavedFiles &files) {
        if (files.paths.empty())
            return tell(paths, Kind::Pictures, files);
        if (paths.size() > 1)
            tellProblems(paths, Kind::Pictures, files);
        Q_EMIT temporaryFilesSaved({files.paths.begin(), files.paths.end()}, folder);
    });
}

void ExtractionController::start(const QStringList &paths, const QString &folder, Kind kind, Use use)
{
    _kind = kind;
    const AnalysisSetup setup
        = analysisSetupFrom(_session.settings.values(), std::make_shared<RootSet>(paths));
    _run.start(
        "Extraction",
        [setup, paths, folder, kind](const RunControl &control) {
            return savedOf(setup, paths, folder, kind, control);
        },
        std::move(use));
}

bool ExtractionController::tellProblems(const QStringList &paths, Kind kind, const SavedFiles &files)
{
    QStringList problems(files.problems.begin(), files.problems.end());
    if (problems.isEmpty())
        return false;
    const qsizetype more = problems.size() - kMostProblems;
    problems = problems.mid(0, kMostProblems);
    if (more > 0)
        problems.append(tr("and %1 more").arg(groupedCount(more)));
    plainMessage(_window, tr(wordsOf(kind).title), tr(wordsOf(kind).incomplete).arg(nameOfFiles(paths)),
                 problems.join(u'\n'), QMessageBox::Close)
        ->open();
    return true;
}

void ExtractionController::tell(const QStringList &paths, Kind kind, const SavedFiles &files)
{
    if (tellProblems(paths, kind, files))
        return;
    const auto count = static_cast<qsizetype>(files.paths.size());
    if (count == 0)
        Q_EMIT saved(tr(wordsOf(kind).nothing).arg(nameOfFiles(paths)), {});
    else if (count == 1)
        Q_EMIT saved(tr("Saved “%1”.").arg(lastPathComponent(files.paths.front())), files.paths.front());
    else
        Q_EMIT saved(tr(wordsOf(kind).saved).arg(groupedCount(count)), files.paths.front());
}

} // namespace quorvin
