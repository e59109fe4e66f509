// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"
#include "cli/ListedFiles.h"
#include "cli/OrderedResults.h"
#include "cli/StopHints.h"
#include "export/ExportEntry.h"
#include "intake/AnalysisOptions.h"
#include "intake/DataCacher.h"
#include "intake/FilelistItem.h"
#include "model/Error.h"

#include <memory>
#include <optional>
#include <vector>

namespace quorvin::cli {

/// The files of one call, in the order of the list, with their errors and their progress. They are asked for
/// one by one, either as files or as records. One thread.
class FileRun {
public:
    /// Walks the folders and reads the projects at once; those that can't be listed or read are failures.
    explicit FileRun(const Context &context);
    /// Files of the paths of the call, in an order of their own.
    FileRun(const Context &context, std::vector<FilelistItemPtr> files);
    /// Gives up what is under way.
    ~FileRun();
    FileRun(const FileRun &) = delete;
    FileRun &operator=(const FileRun &) = delete;

    const std::vector<FilelistItemPtr> &filelist() const { return _files; }

    /// The next file of the list; null at the end.
    FilelistItemPtr nextFile();

    /// What came of the next file of the list; absent at the end. The first call starts a pool of threads
    /// that analyses the files; each call runs the event loop until all files before this one, and this one,
    /// are done. The pool runs ahead of the calls by some MiB of records at most.
    std::optional<FileResult> nextRecord();
    /// Whether the filter of the call lets it through.
    bool passes(const FileResult &result) const;
    /// The next file that passes the filter, null at the end; a file without a record is a failure then.
    /// Without a filter none is read for it.
    FilelistItemPtr nextWantedFile();
    /// The next file that has a record and passes the filter; a file without one is a failure.
    std::optional<ExportEntry> nextEntry();

    /// Does jobs in the way that the settings ask for.
    std::unique_ptr<JobRunner> makeRunner() const { return _setup.makeRunner(); }
    const JobLimits &limits() const { return _setup.limits; }
    Job reportOf(const QString &path, const QString &source) const { return _setup.reportOf(path, source); }

    Job extractionOf(const QString &path, const QString &folder, ExtractionRequest::Kind kind) const
    {
        return _setup.extractionOf(path, folder, kind);
    }

    /// One line of errors; the call counts as failed.
    void fail(const QString &path, const QString &reason);
    /// The same for a failure that is told elsewhere.
    void countFailure(const QString &reason);
    /// Ends progress and output, and gives the exit status. See `Console::finish`.
    Status finish(bool endsInLineFeed);

private:
    FileRun(const Context &context, ListedFiles listed);
    FileRun(const Context &context, std::vector<FilelistItemPtr> files, const QStringList &roots);
    void startProgress();
    void startPool();
    void feedPool();

    const Context &_context;
    AnalysisSetup _setup;
    std::vector<FilelistItemPtr> _files;
    OrderedResults _results;
    std::unique_ptr<DataCacher> _pool;
    std::size_t _nextFile = 0;
    std::size_t _handedOut = 0; ///< to the pool
    StopHints _hints;
    bool _hasFailures = false;
};

} // namespace quorvin::cli
