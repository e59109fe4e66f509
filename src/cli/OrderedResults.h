// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/DataCacher.h"

#include <QEventLoop>

#include <cstddef>
#include <functional>
#include <unordered_set>
#include <vector>

namespace quorvin::cli {

/// Takes the results of a pool as they come and passes them on in the order of the list. A record is released
/// once it was passed on.
class OrderedResults : public DataCacherDelegate {
public:
    explicit OrderedResults(const std::vector<FilelistItemPtr> &files);

    /// Called with each finished file, in order; false ends the wait.
    std::function<bool(const FilelistItem &file)> whenNext;
    /// Called with the number of finished files, in whatever order.
    std::function<void(std::size_t done)> whenCounted;

    /// Runs the event loop until every file was passed on.
    void wait();

    void dataCacherNewObjectReady(const DataCacherDelivery &delivery) override;

private:
    const std::vector<FilelistItemPtr> &_files;
    std::unordered_set<const FilelistItem *> _waiting; ///< not delivered yet
    std::size_t _next = 0;
    bool _isOver = false;
    QEventLoop _loop;
};

} // namespace quorvin::cli
