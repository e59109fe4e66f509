// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace quorvin {

/// The smallest pieces of a rule's text, one after the other. The text must outlive it.
class RuleLexer {
public:
    explicit RuleLexer(QStringView text) : _text(text) { }

    /// Where the next piece begins, behind blanks.
    qsizetype position();
    bool isAtEnd() { return position() == _text.size(); }

    /// Takes the word if it is next, whatever its case.
    bool takeWord(QLatin1String word);
    /// The next word, not taken; "" when something else is next.
    QStringView nextWord();
    bool takeSymbol(QLatin1String symbol);

    /// The next piece when it begins in one of these quotes, or in a bracket, without them. Absent when it
    /// does not, or has no end; nothing is taken then.
    std::optional<QString> takeQuoted();
    std::optional<QString> takeBracketed();
    /// Whether what is next begins so, whole or not.
    bool isQuoteNext();
    bool isBracketNext();

    /// What stands without quotes, up to a connective, a parenthesis, a quote, ".." or the end.
    QStringView takeBare();

private:
    std::optional<QString> takeEnclosed(QChar end);
    bool isBareEnd(qsizetype place) const;

    QStringView _text;
    qsizetype _place = 0;
};

} // namespace quorvin
