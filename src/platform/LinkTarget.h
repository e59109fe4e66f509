// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quorvin {

/// Where a path leads to, all symbolic links followed. Any thread.
struct LinkTarget {
    QByteArray path; ///< as it was given where the links end in nothing that has a folder
    /// A name below /proc that stands for a descriptor, not for a file of that name.
    bool isDescriptor = false;

    /// What a path of any kind leads to, whether something stands there or not.
    static LinkTarget of(const QByteArray &path);
};

/// The number of the descriptor of this process that a path stands for ("/dev/stdout", "/proc/self/fd/3"),
/// also by way of links.
std::optional<int> descriptorOfPath(const QString &path);

} // namespace quorvin
