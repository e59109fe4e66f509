// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <Qt>

namespace quorvin {

/// What a row of a file list tells besides its text, whichever model it comes from.
struct FilelistRow {
    enum Role {
        StateRole = Qt::UserRole, ///< a `State`
        PathRole, ///< full path
        ReasonRole, ///< why the file failed, else ""
        MarkRole, ///< what else there is to say of the file, else ""
        CoverRole, ///< the picture is the file's own, not that of its kind
    };
    enum State {
        Waiting,
        Reading,
        Ready,
        Failed,
        Unread, ///< and nobody is about to read it
    };

    /// The side of the picture before the text, in device-independent pixels.
    static constexpr int kPictureSide = 24;
};

} // namespace quorvin
