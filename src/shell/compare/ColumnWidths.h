// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

namespace quorvin {

/// The widths of file columns by their place, whatever file stands there: as a setting keeps them, and
/// with a usual width where the user has chosen none. Device-independent pixels.
class ColumnWidths {
public:
    static constexpr int kUsual = 200;
    static constexpr int kLeast = 48;
    static constexpr int kMost = 10'000;

    ColumnWidths() = default;
    /// As `text` writes them; what is no width there counts as not chosen.
    explicit ColumnWidths(const QString &text);

    /// Of the column at that place, counted from 0.
    int width(int place) const;
    void setWidth(int place, int width);
    /// Numbers with commas between them, 0 for places whose width nobody has chosen.
    QString text() const;

private:
    std::vector<int> _widths;
};

} // namespace quorvin
