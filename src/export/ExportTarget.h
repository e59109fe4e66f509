// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportEntry.h"
#include "model/Error.h"

namespace quorvin {

/// Where the documents of an export go. Takes the entries one by one, so that a list of any length can be
/// exported while it is analysed. One thread.
class ExportTarget {
public:
    using Result = Expected<void>;

    ExportTarget() = default;
    virtual ~ExportTarget() = default;
    ExportTarget(const ExportTarget &) = delete;
    ExportTarget &operator=(const ExportTarget &) = delete;

    virtual Result add(const ExportEntry &entry) = 0;
    /// Call once, after the last entry; a document without any is the empty one of its format. A target that
    /// is dropped without it leaves no file behind that is not complete.
    virtual Result finish() = 0;
};

} // namespace quorvin
