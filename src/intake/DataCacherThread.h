// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QString>

#include <memory>

namespace quorvin {

struct DataCacherShared;

/// Starts so many threads for a pool that has none; they take files from its queue until there are none, or
/// they are stopped, and leave the pool. "" when the pool has a thread now, else why it has none. Any thread.
QString startThreads(const std::shared_ptr<DataCacherShared> &shared, int count);

/// All lanes are taken, and none has come to the forced file: a thread reads it beside them. One such thread
/// is enough, since a file that keeps it busy goes back into the queue. Does nothing for a file that is in
/// process or done. Any thread.
void startReaderOfItsOwn(const std::shared_ptr<DataCacherShared> &shared, const FilelistItemPtr &file);

} // namespace quorvin
