// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QFont>
#include <QFontMetrics>
#include <QList>
#include <QString>
#include <QTextLayout>

namespace quorvin {

/// The text, or so much of its beginning that it has that many letters and an ellipsis; a letter of two
/// units stays whole. `most` is at least 1.
QString beginningOf(const QString &text, qsizetype most);

/// The text of one cell of a tree of parameters and how it is laid out: wrapped, or shortened to one line. A
/// wrapped text is cut after some lines, and a word below them stands for the rest; the cell can be opened.
/// All measures are device-independent pixels.
class CellText {
    Q_DECLARE_TR_FUNCTIONS(quorvin::CellText)
public:
    static constexpr int kMostLines = 12; ///< unless it is open
    /// More letters than these are never laid out; a value can be a whole book.
    static constexpr qsizetype kMostLetters = 2'000;
    static constexpr qsizetype kMostOpenLetters = 20'000;

    struct Extent {
        int height = 0; ///< with the word
        int wordTop = -1; ///< of the word that opens or closes the cell; -1 when there is none
        qreal firstAscent = 0; ///< of the first line, above its baseline
    };

    /// Takes as much of the value as is ever laid out.
    CellText(const QString &value, bool wraps, bool isOpen);

    QFont font;
    Qt::Alignment alignment = Qt::AlignLeading;
    QList<QTextLayout::FormatRange> formats;

    qsizetype length() const { return _text.size(); }
    bool wraps() const { return _wraps; }
    /// Not all of the value can be seen, however wide the cell is.
    bool isShortened() const { return _letters > _text.size(); }
    int naturalWidth() const { return QFontMetrics(font).horizontalAdvance(_text); }
    bool isSurelyOneLine(const QFontMetrics &metrics, int width) const;
    /// By the count of letters and lines alone.
    int guessedHeight(const QFontMetrics &metrics, int width) const;
    /// Lays the text out in that width.
    Extent layOut(QTextLayout &layout, int width) const;
    /// "more" or "less".
    QString word() const;

private:
    QString _text;
    qsizetype _letters; ///< of the whole value
    bool _wraps;
    bool _isOpen;
};

} // namespace quorvin
