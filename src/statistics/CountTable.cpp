// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/CountTable.h"

#include "statistics/MeasureText.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kMonthsOfYear = 12;
constexpr qint64 kHoursOfDay = 24;

void keepEachOnce(std::vector<quint32> &places)
{
    std::ranges::sort(places);
    places.erase(std::unique(places.begin(), places.end()), places.end());
}

} // namespace

CountView suitableView(const ParameterCount &count)
{
    return {.inRanges = count.values.size() > kFewValues && figuresOf(count).has_value()};
}

CountTable::CountTable(ParameterCountPtr count, const CountView &view)
    : _count(std::move(count)), _figures(figuresOf(*_count)), _isInRanges(view.inRanges && _figures)
{
    if (_isInRanges && _figures->measure.kind == QuantityKind::Date)
        _step = boundedStep(view.step.value_or(finestStep(_figures->least, _figures->greatest)),
                            _figures->least, _figures->greatest);
    if (_isInRanges)
        addRanges();
    else
        addValues();
    _counted = _rows.size();
    addRest();
}

void CountTable::addValues()
{
    _order.resize(_count->values.size());
    std::iota(_order.begin(), _order.end(), 0);
    _rows.reserve(_order.size() + 3);
    for (const quint32 value : _order) {
        const ParameterCount::Value &one = _count->values[value];
        _rows.push_back({.text = one.text, .sum = one.sum, .first = value, .size = 1});
    }
}

void CountTable::addRanges()
{
    _order = _figures->values;
    if (_step)
        addSteps();
    else
        addBins();
}

/// The row of some values in the order, but for what it is called.
CountRow CountTable::rangeOf(std::size_t first, std::size_t end) const
{
    CountRow row{.kind = CountRow::Kind::Range};
    row.first = static_cast<quint32>(first);
    row.size = static_cast<quint32>(end - first);
    row.sum = _count->sumOf(placesOf(row));
    for (std::size_t i = first; i < end; ++i)
        row.sum.streams += _count->values[_order[i]].sum.streams;
    return row;
}

void CountTable::addBins()
{
    const Bins bins = binsOf(*_figures);
    _isLogarithmic = bins.isLogarithmic;
    std::size_t place = 0;
    for (std::size_t bin = 0; bin + 1 < bins.edges.size(); ++bin) {
        const double from = bins.edges[bin];
        const double to = bins.edges[bin + 1];
        const bool isLast = bin + 2 == bins.edges.size();
        const std::size_t first = place;
        while (place < _order.size() && (isLast || _count->values[_order[place]].quantity.value < to))
            ++place;
        CountRow row = rangeOf(first, place);
        row.from = from;
        row.to = to;
        const bool isOneNumber
            = (_figures->isWhole && to - from == 1) || _figures->least == _figures->greatest;
        row.text
            = isOneNumber ? measuredText(from, _figures->measure) : rangeText(from, to, _figures->measure);
        _rows.push_back(row);
    }
}

void CountTable::addSteps()
{
    const auto numberOf
        = [this](quint32 value) { return stepOf(_count->values[value].quantity.value, *_step); };
    std::ranges::stable_sort(_order, {}, numberOf);
    const bool isAlong = isAlongTime(*_step);
    const qint64 again = *_step == DateStep::HourOfDay ? kHoursOfDay : kMonthsOfYear;
    const qint64 last = isAlong ? numberOf(_order.back()) : again - 1;
    std::size_t place = 0;
    for (qint64 number = isAlong ? numberOf(_order.front()) : 0; number <= last; ++number) {
        const std::size_t first = place;
        while (place < _order.size() && numberOf(_order[place]) == number)
            ++place;
        CountRow row = rangeOf(first, place);
        row.text = stepText(number, *_step);
        row.from = isAlong ? beginOfStep(number, *_step) : static_cast<double>(number);
        row.to = isAlong ? beginOfStep(number + 1, *_step) : static_cast<double>(number + 1);
        _rows.push_back(row);
    }
}

void CountTable::addRest()
{
    if (_isInRanges && !_figures->incomparable.empty()) {
        const std::size_t first = _order.size();
        std::ranges::copy(_figures->incomparable, std::back_inserter(_order));
        CountRow row = rangeOf(first, _order.size());
        row.kind = CountRow::Kind::Incomparable;
        row.text = u"cannot be compared"_s;
        _rows.push_back(row);
    }
    const bool isOfFailures = _count->parameter == kFailures;
    if (!_count->missing.empty())
        _rows.push_back({.kind = CountRow::Kind::Missing,
                         .text = isOfFailures ? u"could be read"_s : u"not in this file"_s,
                         .sum = _count->sumOf(_count->missing)});
    if (!_count->failed.empty())
        _rows.push_back({.kind = CountRow::Kind::Failed,
                         .text = u"could not be read"_s,
                         .sum = _count->sumOf(_count->failed)});
}

std::vector<quint32> CountTable::placesOf(const CountRow &row) const
{
    if (row.kind == CountRow::Kind::Missing)
        return _count->missing;
    if (row.kind == CountRow::Kind::Failed)
        return _count->failed;
    std::vector<quint32> places;
    for (const quint32 value : std::span(_order).subspan(row.first, row.size))
        std::ranges::copy(_count->placesOf(_count->values[value]), std::back_inserter(places));
    keepEachOnce(places);
    return places;
}

std::vector<FilelistItemPtr> CountTable::filesAt(std::vector<quint32> places) const
{
    keepEachOnce(places);
    std::vector<FilelistItemPtr> files;
    files.reserve(places.size());
    for (const quint32 place : places)
        files.push_back(_count->files[place].file);
    return files;
}

std::vector<FilelistItemPtr> CountTable::filesOf(std::span<const std::size_t> rows) const
{
    std::vector<quint32> places;
    for (const std::size_t row : rows)
        std::ranges::copy(placesOf(_rows[row]), std::back_inserter(places));
    return filesAt(std::move(places));
}

/// Both texts are values as they stand, so that they measure again what they measured.
Rule CountTable::condition(Rule::Comparison comparison, const QString &text, const QString &upTo) const
{
    return {.kind = Rule::Kind::Parameter,
            .comparison = comparison,
            .parameter = _count->parameter,
            .value = {text},
            .upTo = {upTo}};
}

bool CountTable::addConditions(const CountRow &row, std::vector<Rule> &conditions) const
{
    using enum Rule::Comparison;
    const auto values = std::span(_order).subspan(row.first, row.size);
    const auto textOf = [this](quint32 value) { return _count->values[value].text; };
    const bool isInOrder = row.kind == CountRow::Kind::Range && (!_step || isAlongTime(*_step));
    if (row.kind == CountRow::Kind::Missing) {
        conditions.push_back(condition(IsMissing, {}, {}));
    } else if (row.kind == CountRow::Kind::Failed) {
        conditions.push_back(Rule::failed());
    } else if (isInOrder && values.size() > 1) {
        conditions.push_back(condition(Within, textOf(values.front()), textOf(values.back())));
    } else {
        for (const quint32 value : values)
            conditions.push_back(condition(Equal, textOf(value), {}));
    }
    return conditions.size() <= kMostConditions;
}

std::optional<Rule> CountTable::ruleOf(std::span<const std::size_t> rows) const
{
    std::vector<Rule> conditions;
    for (const std::size_t row : rows) {
        if (!addConditions(_rows[row], conditions))
            return std::nullopt;
    }
    if (conditions.empty())
        return std::nullopt;
    if (_count->parameter == kFailures) {
        // Rules know only that a file failed.
        const bool isMissing = _rows[rows.front()].kind == CountRow::Kind::Missing;
        return rows.size() == 1 && isMissing ? Rule::negated(Rule::failed()) : Rule::failed();
    }
    return Rule::any(std::move(conditions)).simplified();
}

} // namespace quorvin
