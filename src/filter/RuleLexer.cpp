// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/RuleLexer.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

bool isOfWord(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

bool isQuote(QChar c)
{
    return c == u'\'' || c == u'"';
}

/// The word that begins there; "" within a word.
QStringView wordAt(QStringView text, qsizetype place)
{
    if (place > 0 && isOfWord(text[place - 1]))
        return {};
    qsizetype end = place;
    while (end < text.size() && isOfWord(text[end]))
        ++end;
    return text.sliced(place, end - place);
}

bool isWord(QStringView word, QLatin1String other)
{
    return word.compare(other, Qt::CaseInsensitive) == 0;
}

} // namespace

qsizetype RuleLexer::position()
{
    while (_place < _text.size() && _text[_place].isSpace())
        ++_place;
    return _place;
}

QStringView RuleLexer::nextWord()
{
    return wordAt(_text, position());
}

bool RuleLexer::takeWord(QLatin1String word)
{
    const bool isNext = isWord(nextWord(), word);
    _place += isNext ? word.size() : 0;
    return isNext;
}

bool RuleLexer::takeSymbol(QLatin1String symbol)
{
    const bool isNext = _text.sliced(position()).startsWith(symbol);
    _place += isNext ? symbol.size() : 0;
    return isNext;
}

bool RuleLexer::isQuoteNext()
{
    return !isAtEnd() && isQuote(_text[_place]);
}

bool RuleLexer::isBracketNext()
{
    return !isAtEnd() && _text[_place] == u'[';
}

std::optional<QString> RuleLexer::takeQuoted()
{
    return isQuoteNext() ? takeEnclosed(_text[_place]) : std::nullopt;
}

std::optional<QString> RuleLexer::takeBracketed()
{
    return isBracketNext() ? takeEnclosed(u']') : std::nullopt;
}

/// Two ends in a row stand for one of the text.
std::optional<QString> RuleLexer::takeEnclosed(QChar end)
{
    QString text;
    for (qsizetype i = _place + 1; i < _text.size(); ++i) {
        if (_text[i] != end) {
            text += _text[i];
        } else if (i + 1 < _text.size() && _text[i + 1] == end) {
            text += end;
            ++i;
        } else {
            _place = i + 1;
            return text;
        }
    }
    return std::nullopt;
}

bool RuleLexer::isBareEnd(qsizetype place) const
{
    const QChar c = _text[place];
    const QStringView word = wordAt(_text, place);
    return c == u'(' || c == u')' || c == u'[' || isQuote(c) || _text.sliced(place).startsWith(".."_L1)
        || isWord(word, "AND"_L1) || isWord(word, "OR"_L1);
}

QStringView RuleLexer::takeBare()
{
    const qsizetype start = position();
    while (_place < _text.size() && !isBareEnd(_place))
        ++_place;
    return _text.sliced(start, _place - start).trimmed();
}

} // namespace quorvin
