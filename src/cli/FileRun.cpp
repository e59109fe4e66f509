// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/FileRun.h"

#include "cli/Console.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <utility>

namespace quorvin::cli {

namespace {

constexpr std::size_t kMostUnderWay = 512; ///< files that the pool was given and has not delivered
constexpr qsizetype kMostWaitingBytes = qsizetype{32} << 20; ///< of records behind one that is not done

} // namespace

FileRun::FileRun(const Context &context) : FileRun(context, listedFiles(context.paths)) { }

FileRun::FileRun(const Context &context, ListedFiles listed)
    : FileRun(context, std::move(listed.files), listed.roots)
{
    for (const auto &problem : listed.problems)
        fail(problem.path, problem.reason);
}

FileRun::FileRun(const Context &context, std::vector<FilelistItemPtr> files)
    : FileRun(context, std::move(files), context.paths)
{
}

FileRun::FileRun(const Context &context, std::vector<FilelistItemPtr> files, const QStringList &roots)
    : _context(context),
      _setup(analysisSetupFrom(context.settings, std::make_shared<RootSet>(roots))),
      _files(std::move(files)),
      _results(_files)
{
    _setup.options.keepCover = false;
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
    feedPool();
    while (!_results.hasNext()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        _context.console.progressTo(_results.count());
        feedPool();
    }
    return _results.takeNext();
}

bool FileRun::passes(const FileResult &result) const
{
    const RuleMatcher &filter = _context.filter;
    return result.record ? filter.matches(**result.record) : filter.matchesFailed();
}

FilelistItemPtr FileRun::nextWantedFile()
{
    if (_context.arguments.filter.isEmpty())
        return nextFile();
    while (const auto result = nextRecord()) {
        if (passes(*result))
            return result->file;
        if (!result->record)
            fail(result->file->filename(), result->record.error().description);
    }
    return nullptr;
}

std::optional<ExportEntry> FileRun::nextEntry()
{
    while (const auto next = nextRecord()) {
        if (!next->record)
            fail(next->file->filename(), next->record.error().description);
        else if (passes(*next))
            return ExportEntry{next->file->filename(), next->file->prefixedPath(), *next->record};
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
}

/// While this thread waits for whoever takes the output, the pool comes to the end of what it was given.
void FileRun::feedPool()
{
    const std::size_t underWay = _handedOut - _results.count();
    if (underWay > kMostUnderWay / 2 || _results.waitingBytes() > kMostWaitingBytes)
        return;
    const std::size_t end = std::min(filelist().size(), _handedOut + kMostUnderWay - underWay);
    if (end == _handedOut)
        return;
    const auto from = filelist().begin();
    _pool->processFiles({from + static_cast<std::ptrdiff_t>(std::exchange(_handedOut, end)),
                         from + static_cast<std::ptrdiff_t>(end)});
}

void FileRun::fail(const QString &path, const QString &reason)
{
    countFailure(reason);
    _context.console.complain(path, reason);
}

void FileRun::countFailure(const QString &reason)
{
    _hasFailures = true;
    _hints.note(reason);
}

Status FileRun::finish(bool endsInLineFeed)
{
    const bool written = _context.console.finish(endsInLineFeed);
    for (const QString &line : _hints.lines())
        _context.console.complain(line);
    return written && !_hasFailures ? AllWell : SomethingFailed;
}

} // namespace quorvin::cli
