// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Marks.h"
#include "filter/Slots.h"
#include "model/Quantity.h"
#include "model/SearchText.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include <cstddef>
#include <optional>
#include <stop_token>
#include <vector>

namespace quorvin {

/// The distinct values of many records, each once, with its folded form and what it measures. Values are
/// numbered from 0 in the order in which they came. One thread.
class ValueTable {
public:
    using Number = quint32;

    std::size_t size() const { return _size; }
    /// The number of a value of valid UTF-8, which is added when it is new. Absent when the table is full, at
    /// 4 GiB of text.
    std::optional<Number> numberOf(QByteArrayView utf8);

    QByteArray value(Number number) const;
    QByteArrayView folded(Number number) const;
    /// Of kind Text when it measures nothing.
    Quantity quantity(Number number) const;

    /// Marks the values from `first` on in which the text occurs, in one pass over all texts. What it has not
    /// reached when it is stopped stays without.
    void markHaving(const SearchText &text, Marks &marks, Number first, const std::stop_token &stop) const;

    /// Of memory.
    std::size_t bytes() const;

private:
    quint32 startOf(Number number) const;
    bool isValue(Number number, QByteArrayView utf8, QByteArrayView folded) const;
    void append(QByteArrayView utf8);
    void appendQuantity(Number number, const Quantity &quantity);

    QByteArray _folded; ///< all texts; behind each a byte that no text has
    std::vector<quint32> _starts; ///< in the folded texts, of each second value from the first on
    std::size_t _size = 0; ///< values
    Marks _isCapital; ///< of each byte of the folded texts, whether the value has the capital
    QHash<Number, QByteArray> _others; ///< values that are more than their folded form with capitals
    Marks _isQuantity;
    std::vector<quint32> _quantitiesBefore; ///< those of values below each multiple of 64
    std::vector<double> _quantities; ///< their values, and below which of the measures each has
    std::vector<quint8> _measureOf;
    std::vector<Quantity> _measures; ///< each kind with each of its units, at value 0
    Slots _slots; ///< by the folded form
    QByteArray _room; ///< for the folded form of what is looked up
};

} // namespace quorvin
