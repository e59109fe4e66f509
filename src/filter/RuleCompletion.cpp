// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/RuleCompletion.h"

#include "filter/RuleText.h"
#include "model/SearchText.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

using Wanted = RuleMistake::Wanted;

struct ComparisonWord {
    QLatin1String text;
    Rule::Comparison comparison;
};

constexpr std::array kComparisonWords{
    ComparisonWord{QLatin1String("="), Rule::Comparison::Equal},
    ComparisonWord{QLatin1String("!="), Rule::Comparison::NotEqual},
    ComparisonWord{QLatin1String("CONTAINS"), Rule::Comparison::Contains},
    ComparisonWord{QLatin1String("<"), Rule::Comparison::Less},
    ComparisonWord{QLatin1String("<="), Rule::Comparison::LessOrEqual},
    ComparisonWord{QLatin1String(">"), Rule::Comparison::Greater},
    ComparisonWord{QLatin1String(">="), Rule::Comparison::GreaterOrEqual},
    ComparisonWord{QLatin1String("IN"), Rule::Comparison::Within},
    ComparisonWord{QLatin1String("MATCHES"), Rule::Comparison::Matches},
    ComparisonWord{QLatin1String("IS MISSING"), Rule::Comparison::IsMissing},
};

/// Where the word begins that is being typed at the end of the text.
qsizetype startOfWord(QStringView text)
{
    qsizetype start = text.size();
    while (start > 0 && (text[start - 1].isLetterOrNumber() || text[start - 1] == u'_'))
        --start;
    return start;
}

/// Where the bracket or the quote begins that is open at the end of the text; -1 when none is.
qsizetype openAt(QStringView text)
{
    QChar end;
    qsizetype start = -1;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (start >= 0) {
            start = c == end ? -1 : start;
        } else if (c == u'[' || c == u'\'' || c == u'"') {
            start = i;
            end = c == u'[' ? QChar(u']') : c;
        }
    }
    return start;
}

/// What is missing at the end of a text that would be a rule with it.
RuleMistake missingAt(QStringView text)
{
    const auto rule = parseRule(text);
    if (!rule)
        return rule.error();
    return {text.size(), {}, text.trimmed().isEmpty() ? Wanted::Condition : Wanted::Connective};
}

QStringList wordsFor(const RuleMistake &missing)
{
    switch (missing.wanted) {
    case Wanted::Condition:
        return {QStringLiteral("fileType"), QStringLiteral("parameterName"), QStringLiteral("parameterValue"),
                QStringLiteral("failed"),   QStringLiteral("private"),       QStringLiteral("NOT")};
    case Wanted::Comparison: {
        QStringList words;
        for (const ComparisonWord &word : kComparisonWords) {
            if (isAllowed(missing.subject, word.comparison))
                words.append(word.text);
        }
        return words;
    }
    case Wanted::FileType: {
        QStringList words;
        for (const QLatin1String type : kFileTypes)
            words.append(quotedText(type));
        return words;
    }
    case Wanted::Connective:
        return {QStringLiteral("AND"), QStringLiteral("OR")};
    default:
        return {};
    }
}

/// Names that have the text, those first in which it begins a section or a label.
QStringList namesHaving(const QStringList &names, QStringView typed)
{
    const SearchText having(typed.toString());
    QStringList first;
    QStringList others;
    for (const QString &name : names) {
        const QByteArray folded = foldedUtf8(name);
        const bool isStart = folded.startsWith(having.folded()) || folded.contains('/' + having.folded());
        if (isStart)
            first.append(bracketedName(name));
        else if (having.isInFolded(folded))
            others.append(bracketedName(name));
    }
    return first + others;
}

} // namespace

RuleCompletion completeRule(QStringView text, qsizetype cursor, const QStringList &names)
{
    const QStringView before = text.first(cursor);
    qsizetype start = openAt(before);
    const bool isInside = start >= 0;
    if (!isInside)
        start = startOfWord(before);
    const RuleMistake missing = missingAt(before.first(start));
    const QStringView typed = before.sliced(start);
    RuleCompletion completion{start, cursor - start, {}};
    if (missing.position != start
        && !before.sliced(missing.position, start - missing.position).trimmed().isEmpty())
        return completion;
    for (const QString &word : wordsFor(missing)) {
        if (word.startsWith(typed, Qt::CaseInsensitive))
            completion.words.append(word);
    }
    if (missing.wanted == Wanted::Condition)
        completion.words += namesHaving(names, isInside ? typed.sliced(1) : typed);
    completion.words = completion.words.first(std::min(completion.words.size(), kMostCompletions));
    return completion;
}

} // namespace quorvin
