// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

namespace quorvin {

/// What came of a file, or of asking for it again.
struct DataCacherDelivery {
    enum Status {
        Fresh = 1, ///< a run has just ended; without data it failed
        Repeat = 2, ///< the file was asked for again and is finished: only counts change
    };

    FilelistItemPtr file;
    Status status = Fresh;
    QuorvinDataPtr data;
};

class DataCacherDelegate {
public:
    virtual ~DataCacherDelegate() = default;
    virtual void dataCacherNewObjectReady(const DataCacherDelivery &delivery) = 0;
    /// All deliveries that had come have been handed over, one by one.
    virtual void dataCacherDidDeliver() { }
};

} // namespace quorvin
