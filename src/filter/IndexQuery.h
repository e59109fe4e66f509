// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Marks.h"
#include "filter/RecordIndex.h"
#include "filter/Rule.h"
#include "filter/RuleMatcher.h"
#include "model/SearchText.h"

#include <QString>

#include <cstddef>
#include <stop_token>
#include <vector>

namespace quorvin {

/// A text and a rule, asked of the records of an index: what `isContentHas` and the rule tell of each file
/// that has been analysed, found out once for each distinct name and value. One thread, that of the index.
class IndexQuery {
public:
    /// "" is a text that each file has.
    IndexQuery(const QString &text, const Rule &rule);

    /// The same question, of which nothing is known yet.
    IndexQuery anew() const { return {_asked, _rule}; }
    /// It finds nothing but what the other finds: the same rule, and a text grown by some letters.
    bool isWithin(const IndexQuery &other) const;

    /// Marks what is new in the index since the last call. The first time it looks only at what `wider` has
    /// marked, if that is a query that this one is within, and of one generation with the index. False when
    /// it was stopped, and is of no use any more.
    bool mark(const RecordIndex &index, const IndexQuery *wider, const std::stop_token &stop);
    /// Whether it is marked by the numbers that the index has now.
    bool isOf(const RecordIndex &index) const { return _generation == index.generation(); }

    /// Of a living entry; all its terms and values are marked.
    bool hasText(const RecordIndex &index, const RecordIndex::Entry &entry) const;
    bool satisfiesRule(const RecordIndex &index, const RecordIndex::Entry &entry);
    bool matches(const RecordIndex &index, const RecordIndex::Entry &entry)
    {
        return hasText(index, entry) && satisfiesRule(index, entry);
    }

private:
    enum class Answer : quint8 { Unknown, No, Yes };

    /// What is known of a condition: the terms that it is about, and the values for which it holds.
    struct Condition {
        std::vector<quint8> isAbout;
        std::vector<Answer> holds; ///< filled as values are asked for; empty when it needs none
    };

    bool markValues(const RecordIndex &index, const IndexQuery *wider, const std::stop_token &stop);
    void markTerms(const RecordIndex &index);
    void markHolding(std::size_t condition, const ValueTable &table);
    bool holds(std::size_t condition, const RecordIndex &index, const RecordIndex::Entry &entry);
    bool holdsFor(std::size_t condition, const ValueTable &table, quint32 value);

    QString _asked;
    SearchText _text; ///< the same
    Rule _rule;
    RuleMatcher _matcher;
    std::vector<Condition> _conditions;
    Marks _values; ///< that have the text
    std::vector<quint8> _terms; ///< whose label has it
    bool _hasTerms = false; ///< one has
    quint64 _generation = 0;
};

} // namespace quorvin
