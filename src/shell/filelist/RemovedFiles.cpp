// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/RemovedFiles.h"

#include "shell/filelist/Disposal.h"

#include <utility>

namespace quorvin {

void RemovedFiles::keep(Removal removal)
{
    _count += removal.files.size();
    _removals.push_back(std::move(removal));
    while (_count > kMostFiles && _removals.size() > 1) {
        _count -= _removals.front().files.size();
        disposeElsewhere(std::move(_removals.front().files));
        _removals.erase(_removals.begin());
    }
}

RemovedFiles::Removal RemovedFiles::takeLast()
{
    Removal last = std::move(_removals.back());
    _removals.pop_back();
    _count -= last.files.size();
    return last;
}

void RemovedFiles::clear()
{
    for (Removal &removal : std::exchange(_removals, {}))
        disposeElsewhere(std::move(removal.files));
    _count = 0;
}

} // namespace quorvin
