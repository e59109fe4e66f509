// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/FileRun.h"

#include "cli/Console.h"

#include <QCoreApplication>
#include <QThread>

namespace quorvin::cli {

FileRun::FileRun(const Context &context)
    : _context(context),
      _setup(analysisSetupFrom(context.settings)),
      _filler(FilelistFiller::fillerWithSourceArray(context.paths)),
      _results(filelist())
{
    _setup.options.keepCover = false;
    for (const auto &problem : _filler.problems())
        fail(problem.path, problem.reason);
}

FileRun::~FileRun()
{
    if (_pool)
        _pool->cancelThreadsAndWait();
    _context.console.endProgress();
}

FilelistItemPtr FileRun::nextFile()
{
    if (_nextFile == 0)
        startProgress();
    _context.console.progressTo(_nextFile);
    return _nextFile < filelist().size() ? filelist()[_nextFile++] : nullptr;
}

std::optional<FileResult> FileRun::nextRecord()
{
    if (_results.isAtEnd())
        return std::nullopt;
    if (!_pool)
        startPool();
    while (!_results.hasNext()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        _context.console.progressTo(_results.count());
    }
    FileResult result{_results.takeNext(), nullptr};
    if (result.file->isFailed())
        result.record = failure(result.file->failureReason());
    else
        result.record = result.file->quorvinData();
    // From here on the record is the caller's alone.
    result.file->releaseQuorvinData();
    return result;
}

std::optional<ExportEntry> FileRun::nextEntry()
{
    while (const auto next = nextRecord()) {
        if (next->record)
            return ExportEntry{next->file->filename(), next->file->prefixedPath(), *next->record};
        fail(next->file->filename(), next->record.error().description);
    }
    return std::nullopt;
}

void FileRun::startProgress()
{
    _context.console.startProgress(_context.arguments.noProgress ? 0 : filelist().size());
}

void FileRun::startPool()
{
    startProgress();
    const int jobs = _context.arguments.jobs;
    _pool = std::make_unique<DataCacher>([this] { return _setup; });
    _pool->setThreadCount(jobs > 0 ? jobs : QThread::idealThreadCount());
    _pool->setDelegate(&_results);
    _pool->processFiles(filelist());
}

void FileRun::fail(const QString &path, const QString &reason)
{
    _hasFailures = true;
    _hints.note(reason);
    _context.console.complain(path, reason);
}

Status FileRun::finish(bool endsInLineFeed)
{
    const bool written = _context.console.finish(endsInLineFeed);
    for (const QString &line : _hints.lines())
        _context.console.complain(line);
    return written && !_hasFailures ? AllWell : SomethingFailed;
}

} // namespace quorvin::cli
