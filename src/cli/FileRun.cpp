// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/FileRun.h"

#include "cli/Console.h"
#include "intake/AnalysisOptions.h"
#include "platform/NativePath.h"
#include "readers/RecordBuilder.h"

#include <QFile>

#include <cstdio>

namespace quorvin::cli {

FileRun::FileRun(const Arguments &arguments, const Settings &settings, Console &console)
    : _console(console),
      _noProgress(arguments.noProgress),
      _options(recordOptionsFrom(settings)),
      _filler(FilelistFiller::fillerWithSourceArray(arguments.paths))
{
    _options.keepCover = false;
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
    const RecordBuilder builder(_options);
    bool goesOn = true;
    forEachFile([&](const FilelistItem &item) -> std::optional<QString> {
        if (!goesOn)
            return std::nullopt;
        const auto record = builder.dataAboutFile(item.filename());
        if (!record)
            return record.error();
        _console.beginOutput();
        goesOn = use({item.filename(), item.prefixedPath(), *record});
        return std::nullopt;
    });
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
