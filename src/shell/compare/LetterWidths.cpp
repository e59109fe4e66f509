// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/LetterWidths.h"

#include <QFontMetricsF>

#include <cstddef>

namespace quorvin {

namespace {

constexpr std::size_t kFirstPrinted = ' ';

} // namespace

LetterWidths::LetterWidths(const QFont &font) : _font(font)
{
    const QFontMetricsF metrics(font);
    for (std::size_t letter = kFirstPrinted; letter < _widths.size(); ++letter)
        _widths[letter] = static_cast<float>(metrics.horizontalAdvance(QChar(static_cast<char16_t>(letter))));
    // Letters that are not known are mostly those of scripts with square ones.
    _usual = static_cast<float>(metrics.height());
}

LetterWidths::Lines LetterWidths::linesIn(QStringView text, int width) const
{
    float line = 0;
    Lines lines;
    for (const QChar letter : text) {
        if (letter == u'\n') {
            line = 0;
            ++lines.count;
            lines.isExact = false;
            continue;
        }
        const bool isKnown = letter.unicode() < _widths.size();
        line += isKnown ? _widths[letter.unicode()] : _usual;
        lines.isExact = lines.isExact && isKnown;
        if (line > static_cast<float>(width)) {
            line = 0;
            ++lines.count;
            lines.isExact = false;
        }
    }
    return lines;
}

} // namespace quorvin
