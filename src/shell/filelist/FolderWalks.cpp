// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FolderWalks.h"

#include <QPromise>

#include <sys/prctl.h>

#include <limits>
#include <thread>

namespace quorvin {

FolderWalks::FolderWalks(QObject *parent) : QObject(parent)
{
    connect(&_watcher, &QFutureWatcherBase::progressValueChanged, this, &FolderWalks::progressed);
    connect(&_watcher, &QFutureWatcherBase::finished, this, &FolderWalks::finish);
}

FolderWalks::~FolderWalks()
{
    _stop.request_stop();
}

void FolderWalks::start(const Request &request)
{
    if (request.index == Request::kReplace)
        cancel();
    _requests.push_back(request);
    if (_requests.size() == 1) {
        Q_EMIT started();
        walkNext();
    }
}

void FolderWalks::cancel()
{
    if (_requests.empty())
        return;
    _requests.clear();
    _stop.request_stop();
    _watcher.setFuture({});
    Q_EMIT ended();
}

void FolderWalks::walkNext()
{
    QPromise<Files> promise;
    _stop = {};
    _watcher.setFuture(promise.future());
    promise.start();
    promise.setProgressRange(0, std::numeric_limits<int>::max());
    // A folder on a disk that does not answer holds up its thread alone.
    std::thread([promise = std::move(promise), paths = _requests.front().paths,
                 stop = _stop.get_token()]() mutable {
        ::prctl(PR_SET_NAME, "FolderWalk");
        const auto filler = FilelistFiller::fillerWithSourceArray(
            paths, stop, [&](std::size_t found) { promise.setProgressValue(static_cast<int>(found)); });
        promise.addResult(filler.filelist());
        promise.finish();
    }).detach();
}

void FolderWalks::finish()
{
    if (_requests.empty())
        return;
    const Request done = _requests.front();
    const Files files = _watcher.result();
    _requests.pop_front();
    if (_requests.empty())
        Q_EMIT ended();
    else
        walkNext();
    Q_EMIT found(done, files);
}

} // namespace quorvin
