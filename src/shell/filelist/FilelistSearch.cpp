// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistSearch.h"

namespace quorvin {

FilelistSearch::FilelistSearch(QObject *parent) : BackgroundRunBase(parent) { }

void FilelistSearch::start()
{
    begin();
    Q_EMIT started();
}

void FilelistSearch::tell(const IndexAnswer::Progress &progress)
{
    if (isUnderWay())
        advance(static_cast<int>(progress.done), static_cast<int>(progress.total));
}

void FilelistSearch::end()
{
    if (isUnderWay())
        finish();
}

} // namespace quorvin
