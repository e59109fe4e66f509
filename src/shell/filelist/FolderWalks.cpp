// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FolderWalks.h"

#include "projects/Project.h"

namespace quorvin {

void FolderWalks::start(const Request &request)
{
    if (request.paths.size() == 1 && isProjectPath(request.paths.front()))
        return Q_EMIT projectWanted(request.paths.front(), request.index == Request::kReplace);
    if (request.index == Request::kReplace)
        cancel();
    _requests.push_back(request);
    if (_requests.size() == 1)
        walkNext();
}

void FolderWalks::cancel()
{
    _requests.clear();
    _run.cancel();
}

void FolderWalks::walkNext()
{
    _run.start(
        "FolderWalk",
        [paths = _requests.front().paths](const RunControl &run) {
            return FilelistFiller::fillerWithSourceArray(
                paths, run.stop(), [&](std::size_t files) { run.report(static_cast<int>(files)); });
        },
        [this](const FilelistFiller &result) { finish(result); });
}

void FolderWalks::finish(const FilelistFiller &result)
{
    const Request done = _requests.front();
    _requests.pop_front();
    if (!_requests.empty())
        walkNext();
    Q_EMIT found(done, result.filelist());
    Q_EMIT walked(done.paths, result.filelist().size(), result.problems());
}

} // namespace quorvin
