// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"
#include "statistics/Bins.h"
#include "statistics/Figures.h"
#include "statistics/ParameterCount.h"

#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace quorvin {

/// A line of a count: files that have something in common.
struct CountRow {
    enum class Kind : quint8 {
        Value, ///< one text
        Range, ///< numbers from `from` up to `to`, which is not among them; or dates of one step
        Incomparable, ///< texts that are no quantity, or one of another measure
        Missing, ///< the file has no such parameter
        Failed, ///< the file could not be read
    };

    Kind kind = Kind::Value;
    QString text = {}; ///< of the other kinds in words
    CountSum sum = {};
    double from = 0; ///< of a Range of numbers, or of dates along the time; else its place in the order
    double to = 0;
    quint32 first = 0; ///< in the order of the table: its values
    quint32 size = 0;

    /// Its text tells of files, and is none of theirs.
    bool isOfWords() const { return kind != Kind::Value && kind != Kind::Range; }
};

/// How a count is laid out.
struct CountView {
    bool inRanges = false; ///< where it has figures; else a row a value
    std::optional<DateStep> step = {}; ///< of dates; absent: as fine as fits

    bool operator==(const CountView &) const = default;
};

/// Values where they are few, or measure nothing; else ranges.
CountView suitableView(const ParameterCount &count);

/// A count in rows: values, the most frequent first, or ranges in their order, those without files among
/// them; then what can not be compared, what has no value and what could not be read, where there is any.
/// Does not change once made, so any thread may read it.
class CountTable {
public:
    /// Makes all rows; takes its time with many values.
    CountTable(ParameterCountPtr count, const CountView &view);

    const ParameterCount &count() const { return *_count; }
    const std::optional<Figures> &figures() const { return _figures; }
    std::span<const CountRow> rows() const { return _rows; }
    /// The rows that a plot shows: the values or ranges alone.
    std::span<const CountRow> counted() const { return rows().first(_counted); }
    bool isInRanges() const { return _isInRanges; }
    bool isLogarithmic() const { return _isLogarithmic; }
    /// Of dates in ranges.
    std::optional<DateStep> step() const { return _step; }

    /// The files of these rows, each once, in the order of the list.
    std::vector<FilelistItemPtr> filesOf(std::span<const std::size_t> rows) const;
    /// The rule that these rows' files satisfy; absent where it would be too long, for no rows, or of
    /// failures by their reasons.
    std::optional<Rule> ruleOf(std::span<const std::size_t> rows) const;

private:
    void addValues();
    void addRanges();
    void addBins();
    void addSteps();
    void addRest();
    CountRow rangeOf(std::size_t first, std::size_t end) const;
    std::vector<quint32> placesOf(const CountRow &row) const;
    std::vector<FilelistItemPtr> filesAt(std::vector<quint32> places) const;
    bool addConditions(const CountRow &row, std::vector<Rule> &conditions) const;
    Rule condition(Rule::Comparison comparison, const QString &text, const QString &upTo) const;

    ParameterCountPtr _count;
    std::optional<Figures> _figures;
    std::vector<CountRow> _rows;
    std::vector<quint32> _order; ///< values of the count, row by row
    std::size_t _counted = 0;
    bool _isInRanges = false;
    bool _isLogarithmic = false;
    std::optional<DateStep> _step;
};

using CountTablePtr = std::shared_ptr<const CountTable>;

/// Of values in a suitable view.
inline constexpr std::size_t kFewValues = 20;
/// More conditions than a person would look at.
inline constexpr std::size_t kMostConditions = 200;

} // namespace quorvin
