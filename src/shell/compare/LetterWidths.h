// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFont>
#include <QStringView>

#include <array>

namespace quorvin {

/// Tells quickly how many lines a text takes, without laying it out: by the widths of its letters, of which
/// those of the western European scripts are known. Device-independent pixels.
class LetterWidths {
public:
    explicit LetterWidths(const QFont &font = {});

    const QFont &font() const { return _font; }
    /// About how many lines it takes when it is wrapped; surely one where `isExact` is set.
    struct Lines {
        int count = 1;
        bool isExact = true;
    };
    Lines linesIn(QStringView text, int width) const;

private:
    QFont _font;
    std::array<float, 256> _widths{};
    float _usual = 0; ///< of a letter that is not known
};

} // namespace quorvin
