// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/OrderedResults.h"

namespace quorvin::cli {

OrderedResults::OrderedResults(const std::vector<FilelistItemPtr> &files) : _files(files)
{
    for (const FilelistItemPtr &file : files)
        _waiting.insert(file.get());
}

void OrderedResults::wait()
{
    if (!_isOver)
        _loop.exec();
}

void OrderedResults::dataCacherNewObjectReady(const DataCacherDelivery &delivery)
{
    if (_isOver || delivery.status != DataCacherDelivery::Fresh)
        return;
    _waiting.erase(delivery.file.get());
    whenCounted(_files.size() - _waiting.size());
    while (!_isOver && _next < _files.size() && !_waiting.contains(_files[_next].get())) {
        FilelistItem &file = *_files[_next++];
        _isOver = !whenNext(file);
        file.releaseQuorvinData();
    }
    _isOver = _isOver || _next == _files.size();
    if (_isOver)
        _loop.quit();
}

} // namespace quorvin::cli
