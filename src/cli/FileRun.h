// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Arguments.h"
#include "export/ExportEntry.h"
#include "intake/AnalysisOptions.h"
#include "intake/FilelistFiller.h"

#include <functional>
#include <optional>
#include <vector>

namespace quorvin {
class Settings;
}

namespace quorvin::cli {

class Console;

/// The files of one call, in the order of the list, with their errors and their progress.
class FileRun {
public:
    /// Walks the folders at once; those that can't be listed are failures.
    FileRun(const Arguments &arguments, const Settings &settings, Console &console);

    const std::vector<FilelistItemPtr> &filelist() const { return _filler.filelist(); }

    /// Calls `use` for every file in order, which gives a reason when it failed.
    void forEachFile(const std::function<std::optional<QString>(const FilelistItem &)> &use);

    /// Analyses all files on a pool of threads and calls `use` with each record, in the order of the list and
    /// as soon as all before it are done; false ends the run. A file without a record is a failure.
    void forEachRecord(const std::function<bool(const ExportEntry &)> &use);

    /// Does jobs in the way that the settings ask for.
    std::unique_ptr<JobRunner> makeRunner() const { return _setup.makeRunner(); }

    bool hasFailures() const { return _hasFailures; }

private:
    void fail(const QString &path, const QString &reason);

    Console &_console;
    bool _noProgress;
    int _jobs;
    AnalysisSetup _setup;
    FilelistFiller _filler;
    bool _hasFailures = false;
};

/// All paths of a call, absolute, those of --files-from last. The error is one line.
tl::expected<QStringList, QString> pathsOf(const Arguments &arguments);

} // namespace quorvin::cli
