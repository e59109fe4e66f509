// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/CellText.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace quorvin {

QString beginningOf(const QString &text, qsizetype most)
{
    if (text.size() <= most)
        return text;
    return text.left(text[most - 1].isHighSurrogate() ? most - 1 : most) + QChar(0x2026);
}

CellText::CellText(const QString &value, bool wraps, bool isOpen)
    : _text(beginningOf(value, isOpen ? kMostOpenLetters : kMostLetters)),
      _letters(value.size()),
      _wraps(wraps),
      _isOpen(isOpen)
{
}

bool CellText::isSurelyOneLine(const QFontMetrics &metrics, int width) const
{
    return _text.size() * metrics.maxWidth() <= width && !_text.contains(u'\n');
}

int CellText::guessedHeight(const QFontMetrics &metrics, int width) const
{
    qsizetype lines = _text.size() * metrics.averageCharWidth() / width + _text.count(u'\n') + 1;
    if (!_isOpen)
        lines = std::min<qsizetype>(lines, kMostLines + 1);
    return static_cast<int>(lines) * metrics.lineSpacing();
}

CellText::Extent CellText::layOut(QTextLayout &layout, int width) const
{
    QTextOption option(alignment);
    // A value reads as its own script does, whatever the window's direction.
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(_wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    QString shown = _text;
    shown.replace(u'\n', _wraps ? QChar(QChar::LineSeparator) : QChar(u' '));
    if (!_wraps)
        shown = QFontMetrics(font).elidedText(shown, Qt::ElideRight, width);
    layout.setText(shown);
    layout.setFont(font);
    layout.setTextOption(option);
    layout.setFormats(formats);
    qreal height = 0;
    int lines = 0;
    bool isLong = _wraps && _letters > kMostLetters;
    Extent extent;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        if (lines++ == 0)
            extent.firstAscent = line.ascent();
        height += line.height();
        if (!_wraps || lines < kMostLines || line.textStart() + line.textLength() >= shown.size())
            continue;
        isLong = true;
        if (!_isOpen)
            break;
    }
    layout.endLayout();
    extent.height = static_cast<int>(std::ceil(height));
    if (isLong) {
        extent.wordTop = extent.height;
        extent.height += QFontMetrics(font).height();
    }
    return extent;
}

QString CellText::word() const
{
    if (!_isOpen)
        return tr("more");
    return isShortened() ? tr("less (a copy has all %1 letters)").arg(QLocale().toString(_letters))
                         : tr("less");
}

} // namespace quorvin
