// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

/// A text whose tail may be a title, which the window sets in its title font, and whose beginning may be
/// italic. All consumers of plain text take `plain` as it is.
struct StyledText {
    QString plain;
    qsizetype titleStart = -1; ///< index in `plain` at which the title begins, or -1 without a title
    qsizetype italicLength = 0; ///< characters from the start that are italic

    bool hasTitle() const { return titleStart >= 0; }
    bool operator==(const StyledText &) const = default;
};

} // namespace quorvin
