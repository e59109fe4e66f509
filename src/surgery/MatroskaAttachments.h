// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

namespace quorvin {

class RegularFile;

/// A file that is attached to a Matroska file, by its place there.
struct MatroskaAttachment {
    QString name; ///< "" for none
    quint64 offset = 0; ///< of its content, in bytes
    quint64 size = 0; ///< as it is told: the file may end before
    bool isBehindStreams = false; ///< and not ahead of what is played
};

/// In the order of the file, wherever they stand in it; none for a file of another kind. Reads what leads to
/// them, and no contents. Any thread.
std::vector<MatroskaAttachment> matroskaAttachments(const RegularFile &file);

} // namespace quorvin
