// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/FileRun.h"

#include "cli/Console.h"
#include "cli/OrderedResults.h"
#include "intake/DataCacher.h"
#include "platform/NativePath.h"

#include <QFile>
#include <QThread>

#include <cstdio>

namespace quorvin::cli {

FileRun::FileRun(const Arguments &arguments, const Settings &settings, Console &console)
    : _console(console),
      _noProgress(arguments.noProgress),
      _jobs(arguments.jobs > 0 ? arguments.jobs : QThread::idealThreadCount()),
      _setup(analysisSetupFrom(settings)),
      _filler(FilelistFiller::fillerWithSourceArray(arguments.paths))
{
    _setup.options.keepCover = false;
    for (const auto &problem : _filler.problems())
        fail(problem.path, problem.reason);
}

void FileRun::forEachFile(const std::function<std::optional<QString>(const FilelistItem &)> &use)
{
    _console.startProgress(_noProgress ? 0 : filelist().size());
    std::size_t done = 0;
    for (const FilelistItemPtr &item : filelist()) {
        if (const auto reason = use(*item))
            fail(item->filename(), *reason);
        _console.progressTo(++done);
    }
    _console.endProgress();
}

void FileRun::forEachRecord(const std::function<bool(const ExportEntry &)> &use)
{
    if (filelist().empty())
        return;
    _console.startProgress(_noProgress ? 0 : filelist().size());
    OrderedResults results(filelist());
    results.whenNext = [&](const FilelistItem &item) {
        if (item.isFailed()) {
            fail(item.filename(), item.failureReason());
            return true;
        }
        _console.beginOutput();
        return use({item.filename(), item.prefixedPath(), item.quorvinData()});
    };
    results.whenCounted = [&](std::size_t done) { _console.progressTo(done); };

    DataCacher pool([this] { return _setup; });
    pool.setThreadCount(_jobs);
    pool.setDelegate(&results);
    pool.processFiles(filelist());
    results.wait();
    pool.cancelThreadsAndWait();
    _console.endProgress();
}

void FileRun::fail(const QString &path, const QString &reason)
{
    _hasFailures = true;
    _console.complain(path, reason);
}

tl::expected<QStringList, QString> pathsOf(const Arguments &arguments)
{
    QStringList paths;
    for (const QString &path : arguments.paths)
        paths.append(absolutePath(path));
    if (!arguments.filesFrom)
        return paths;

    QFile list;
    const QString &name = *arguments.filesFrom;
    const bool opened = name == QLatin1String("-") ? list.open(stdin, QIODevice::ReadOnly)
                                                   : (list.setFileName(name), list.open(QIODevice::ReadOnly));
    if (!opened)
        return tl::unexpected(name + QLatin1String(": ") + list.errorString());
    for (const QByteArray &path : list.readAll().split(arguments.zeroSeparated ? '\0' : '\n')) {
        if (!path.isEmpty())
            paths.append(absolutePath(decodePath(path)));
    }
    return paths;
}

} // namespace quorvin::cli
