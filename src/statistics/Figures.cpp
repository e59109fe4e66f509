// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/Figures.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvin {

namespace {

/// That of most streams; the first of equals.
Measure mostFrequentMeasure(const ParameterCount &count)
{
    std::vector<std::pair<Measure, qint64>> measures;
    for (const ParameterCount::Value &value : count.values) {
        if (value.quantity.kind == QuantityKind::Text)
            continue;
        const Measure measure{value.quantity.kind, value.quantity.unit};
        auto known = std::ranges::find(
            measures, measure, [](const auto &one) -> const auto & { return one.first; });
        if (known == measures.end())
            known = measures.insert(known, {measure, 0});
        known->second += value.sum.streams;
    }
    const auto most = std::ranges::max_element(
        measures, {}, [](const auto &one) -> const auto & { return one.second; });
    return most == measures.end() ? Measure{QuantityKind::Text, {}} : most->first;
}

/// The values from the least up, each with the number of streams up to it.
class Ladder {
public:
    Ladder(const ParameterCount &count, const std::vector<quint32> &values)
    {
        qint64 streams = 0;
        for (const quint32 value : values) {
            streams += count.values[value].sum.streams;
            _steps.emplace_back(streams, count.values[value].quantity.value);
        }
    }

    qint64 streams() const { return _steps.back().first; }
    /// The value at a part of the way from the first stream to the last.
    double at(double part) const
    {
        const double place = part * static_cast<double>(streams() - 1);
        const auto below = static_cast<qint64>(std::floor(place));
        const double value = ofStream(below);
        const double rest = place - static_cast<double>(below);
        return rest > 0 ? value + rest * (ofStream(below + 1) - value) : value;
    }

private:
    double ofStream(qint64 stream) const
    {
        return std::ranges::upper_bound(_steps, stream, {}, [](const auto &step) { return step.first; })
            ->second;
    }

    std::vector<std::pair<qint64, double>> _steps;
};

void fill(Figures &figures, const ParameterCount &count)
{
    const auto quantityAt = [&](quint32 value) { return count.values[value].quantity.value; };
    std::ranges::stable_sort(figures.values, {}, quantityAt);
    const Ladder ladder(count, figures.values);
    figures.streams = ladder.streams();
    figures.least = quantityAt(figures.values.front());
    figures.greatest = quantityAt(figures.values.back());
    figures.median = ladder.at(0.5);
    figures.lowerQuartile = ladder.at(0.25);
    figures.upperQuartile = ladder.at(0.75);
    const auto all = static_cast<double>(figures.streams);
    for (const quint32 value : figures.values) {
        // Shares, as a sum of large values might lose the small ones.
        figures.mean += quantityAt(value) * (static_cast<double>(count.values[value].sum.streams) / all);
        figures.isWhole = figures.isWhole && quantityAt(value) == std::floor(quantityAt(value));
    }
    figures.mean = std::clamp(figures.mean, figures.least, figures.greatest);
}

} // namespace

std::optional<Figures> figuresOf(const ParameterCount &count)
{
    Figures figures{.measure = mostFrequentMeasure(count)};
    if (figures.measure.kind == QuantityKind::Text)
        return std::nullopt;
    const Quantity one{figures.measure.kind, 0, figures.measure.unit};
    qint64 all = 0;
    qint64 compared = 0;
    for (quint32 value = 0; value < count.values.size(); ++value) {
        const bool isCompared = compareQuantities(count.values[value].quantity, one).has_value();
        (isCompared ? figures.values : figures.incomparable).push_back(value);
        all += count.values[value].sum.streams;
        compared += isCompared ? count.values[value].sum.streams : 0;
    }
    if (2 * compared <= all)
        return std::nullopt;
    fill(figures, count);
    return figures;
}

} // namespace quorvin
