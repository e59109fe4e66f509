// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/IndexQuery.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr std::size_t kValuesBetweenStops = 1 << 14;

/// The first number from `place` on for which it is so; `end` if there is none. Asks of some numbers at once,
/// as the answers come sooner than a decision after each.
template <typename Is>
std::size_t firstWhere(std::size_t place, std::size_t end, const Is &is)
{
    constexpr std::size_t kAtOnce = 8;
    for (bool isAny = false; place + kAtOnce <= end; place += kAtOnce) {
        for (std::size_t i = 0; i < kAtOnce; ++i)
            isAny |= is(place + i);
        if (isAny)
            break;
    }
    while (place < end && !is(place))
        ++place;
    return place;
}

} // namespace

IndexQuery::IndexQuery(const QString &text, const Rule &rule)
    : _asked(text),
      _text(text),
      _rule(rule.simplified()),
      _matcher(_rule),
      _conditions(_matcher.conditions().size())
{
}

bool IndexQuery::isWithin(const IndexQuery &other) const
{
    return _rule == other._rule && !other._text.isEmpty() && other._text.isInFolded(_text.folded());
}

bool IndexQuery::mark(const RecordIndex &index, const IndexQuery *wider, const std::stop_token &stop)
{
    _generation = index.generation();
    markTerms(index);
    return _text.isEmpty() || markValues(index, wider, stop);
}

void IndexQuery::markTerms(const RecordIndex &index)
{
    for (const RecordIndex::Name &name : index.names().subspan(_terms.size())) {
        _terms.push_back(_text.isIn(name.term->label) ? 1 : 0);
        _hasTerms = _hasTerms || _terms.back() != 0;
        for (std::size_t i = 0; i < _conditions.size(); ++i) {
            const bool isAbout = _matcher.conditions()[i].isAbout({name.group, name.subgroup}, *name.term);
            _conditions[i].isAbout.push_back(isAbout ? 1 : 0);
        }
    }
    for (std::size_t i = 0; i < _conditions.size(); ++i) {
        if (_matcher.conditions()[i].needsValue())
            markHolding(i, index.valueTable());
    }
}

/// Prepares the answers on new values. Of what is asked of all values, those that contain its text are found
/// in one pass, and no other can hold.
void IndexQuery::markHolding(std::size_t condition, const ValueTable &table)
{
    const RuleCondition &asked = _matcher.conditions()[condition];
    std::vector<Answer> &holds = _conditions[condition].holds;
    const std::size_t known = holds.size();
    const bool isOfAll
        = asked.kind() == Rule::Kind::ParameterValue && asked.needsContained() && !asked.text().isEmpty();
    holds.resize(table.size(), isOfAll ? Answer::No : Answer::Unknown);
    if (!isOfAll)
        return;
    Marks having;
    having.resize(table.size());
    table.markHaving(asked.text(), having, static_cast<quint32>(known), {});
    for (std::size_t value = known; value < table.size(); ++value) {
        if (having[value])
            holds[value] = Answer::Unknown;
    }
}

bool IndexQuery::markValues(const RecordIndex &index, const IndexQuery *wider, const std::stop_token &stop)
{
    const ValueTable &table = index.valueTable();
    auto next = static_cast<quint32>(_values.size());
    _values.resize(table.size());
    if (next == 0 && wider && wider->isOf(index)) {
        const auto known = static_cast<quint32>(std::min(wider->_values.size(), table.size()));
        for (; next < known; ++next) {
            if (next % kValuesBetweenStops == 0 && stop.stop_requested())
                return false;
            if (next % Marks::kWord == 0 && wider->_values.word(next) == 0) {
                next += Marks::kWord - 1;
                continue;
            }
            if (wider->_values[next] && _text.isInFolded(table.folded(next)))
                _values.set(next);
        }
        next = known;
    }
    if (next < table.size())
        table.markHaving(_text, _values, next, stop);
    return !stop.stop_requested();
}

bool IndexQuery::hasText(const RecordIndex &index, const RecordIndex::Entry &entry) const
{
    if (_text.isEmpty())
        return true;
    if (!entry.isIndexed)
        return index.unindexed(entry)->isContentHas(_text);
    const auto terms = index.terms(entry);
    const auto values = index.values(entry);
    const auto hasName = [&](std::size_t i) { return _terms[terms[i]] != 0; };
    const auto hasValue = [&](std::size_t i) { return _values[values[i]]; };
    return (_hasTerms && firstWhere(0, terms.size(), hasName) < terms.size())
        || firstWhere(0, values.size(), hasValue) < values.size();
}

bool IndexQuery::satisfiesRule(const RecordIndex &index, const RecordIndex::Entry &entry)
{
    if (_matcher.isEmpty())
        return true;
    if (entry.fileType == RecordIndex::kFailed)
        return _matcher.matchesFailed();
    if (!entry.isIndexed)
        return _matcher.matches(*index.unindexed(entry));
    return _matcher.matchesBy([&](std::size_t condition) { return holds(condition, index, entry); });
}

bool IndexQuery::holds(std::size_t condition, const RecordIndex &index, const RecordIndex::Entry &entry)
{
    const RuleCondition &asked = _matcher.conditions()[condition];
    if (asked.kind() == Rule::Kind::FileType) {
        const QLatin1String type = kFileTypes[static_cast<quint8>(entry.fileType)];
        return asked.holdsFor(QByteArrayView(type.data(), type.size()));
    }
    const auto terms = index.terms(entry);
    const auto values = index.values(entry);
    const auto isFound = [&](const auto &mayBe) {
        std::size_t place = firstWhere(0, terms.size(), mayBe);
        while (place < terms.size() && asked.needsValue()
               && !holdsFor(condition, index.valueTable(), values[place]))
            place = firstWhere(place + 1, terms.size(), mayBe);
        return place < terms.size();
    };
    const Condition &known = _conditions[condition];
    const auto isAbout = [&](std::size_t i) { return known.isAbout[terms[i]] != 0; };
    const auto mayHold = [&](std::size_t i) { return known.holds[values[i]] != Answer::No; };
    const bool isOfAll = asked.kind() == Rule::Kind::ParameterValue && asked.needsValue();
    return (isOfAll ? isFound(mayHold) : isFound(isAbout)) != asked.isOnAbsence();
}

bool IndexQuery::holdsFor(std::size_t condition, const ValueTable &table, quint32 value)
{
    Answer &answer = _conditions[condition].holds[value];
    if (answer == Answer::Unknown) {
        const RuleCondition &asked = _matcher.conditions()[condition];
        const bool isHeld = asked.isByQuantity() ? asked.holdsFor(table.quantity(value))
            : asked.isByFoldedText()             ? asked.holdsForFolded(table.folded(value))
                                                 : asked.holdsFor(table.value(value));
        answer = isHeld ? Answer::Yes : Answer::No;
    }
    return answer == Answer::Yes;
}

} // namespace quorvin
