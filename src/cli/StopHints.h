// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <array>

namespace quorvin::cli {

/// What the reason of a file that was stopped means, told once for each kind and not for each file.
class StopHints {
public:
    /// Takes the reason of any failure.
    void note(const QString &reason);
    /// A line for each kind that was noted, with the settings that change it.
    QStringList lines() const;

    static constexpr std::size_t kKinds = 3;

private:
    std::array<bool, kKinds> _noted{};
};

} // namespace quorvin::cli
