// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFont>

namespace quorvin {

/// How the cells of a comparison look, as the settings say.
struct TableLook {
    static constexpr int kMargin = 6; ///< beside a text; device-independent pixels, as all below
    static constexpr int kLead = 3; ///< above and below a text

    QFont font;
    int rowHeight = 0; ///< at least
    bool wraps = true;
    bool rightAlignsNames = true;
    bool hasHeavyNames = false;

    /// That of headings, of names where they are to be so, and of cells that differ from the reference.
    QFont heavyFont() const
    {
        QFont heavy = font;
        heavy.setWeight(QFont::DemiBold);
        return heavy;
    }
};

} // namespace quorvin
