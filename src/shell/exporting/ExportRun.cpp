// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/exporting/ExportRun.h"

#include <QPromise>

#include <sys/prctl.h>

namespace quorvin {

namespace {

using Promise = QPromise<QStringList>;

/// One document ends with its first failure; of a folder each document is tried.
QStringList exported(const ExportRun::Task &task, const std::stop_token &stop, Promise &promise)
{
    const auto target = task.toFolder ? task.exporter.toFolder(task.path) : task.exporter.toFile(task.path);
    QStringList failures;
    int done = 0;
    for (const ExportEntry &entry : task.entries) {
        if (stop.stop_requested() || (!task.toFolder && !failures.isEmpty()))
            return failures;
        if (const auto added = target->add(entry); !added)
            failures.append(added.error().description);
        promise.setProgressValue(++done);
    }
    if (const auto finished = failures.isEmpty() ? target->finish() : ExportTarget::Result(); !finished)
        failures.append(finished.error().description);
    return failures;
}

} // namespace

ExportRun::ExportRun(QObject *parent) : QObject(parent)
{
    connect(&_watcher, &QFutureWatcherBase::progressValueChanged, this, &ExportRun::progressed);
    connect(&_watcher, &QFutureWatcherBase::finished, this, &ExportRun::finish);
}

ExportRun::~ExportRun()
{
    cancel();
}

void ExportRun::start(Task task)
{
    if (isUnderWay())
        return;
    Promise promise;
    _watcher.setFuture(promise.future());
    promise.start();
    promise.setProgressRange(0, static_cast<int>(task.entries.size()));
    _thread = std::jthread(
        [promise = std::move(promise), task = std::move(task)](const std::stop_token &stop) mutable {
            ::prctl(PR_SET_NAME, "Export");
            promise.addResult(exported(task, stop, promise));
            promise.finish();
        });
    Q_EMIT started();
}

void ExportRun::cancel()
{
    _watcher.setFuture({});
    _thread = {};
}

void ExportRun::finish()
{
    if (!isUnderWay())
        return;
    const QStringList failures = _watcher.result();
    _thread = {};
    Q_EMIT ended(failures);
}

} // namespace quorvin
