// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/OrderedResults.h"

namespace quorvin::cli {

void OrderedResults::wait()
{
    if (!_isOver)
        _loop.exec();
}

void OrderedResults::dataCacherNewObjectReady(const DataCacherDelivery &delivery)
{
    if (_isOver || delivery.status != DataCacherDelivery::Fresh)
        return;
    whenCounted(++_done);
    while (!_isOver && _next < _files.size()) {
        FilelistItem &file = *_files[_next];
        if (!file.isFailed() && !file.quorvinData())
            break;
        ++_next;
        _isOver = !whenNext(file);
        file.setQuorvinData(nullptr);
    }
    _isOver = _isOver || _next == _files.size();
    if (_isOver)
        _loop.quit();
}

} // namespace quorvin::cli
