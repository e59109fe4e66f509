// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/ValueTable.h"

#include "model/Utf8.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

namespace quorvin {

namespace {

constexpr char kEnd = '\xff'; ///< in no UTF-8
constexpr std::size_t kMarksBetweenStops = 4096;

bool isCapital(char c)
{
    return c >= 'A' && c <= 'Z';
}

/// Whether a value is its folded form but for capitals of ASCII.
bool isFoldedWithCapitals(QByteArrayView utf8, QByteArrayView folded)
{
    return std::ranges::equal(
        utf8, folded, [](char c, char low) { return c == low || (isCapital(c) && c + ('a' - 'A') == low); });
}

} // namespace

quint32 ValueTable::startOf(Number number) const
{
    const quint32 start = _starts[number / 2];
    return number % 2 == 0 ? start : static_cast<quint32>(_folded.indexOf(kEnd, start)) + 1;
}

QByteArrayView ValueTable::folded(Number number) const
{
    const quint32 start = startOf(number);
    return QByteArrayView(_folded).sliced(start, _folded.indexOf(kEnd, start) - start);
}

QByteArray ValueTable::value(Number number) const
{
    if (const auto other = _others.constFind(number); other != _others.cend())
        return *other;
    QByteArray value = folded(number).toByteArray();
    const std::size_t start = startOf(number);
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (_isCapital[start + static_cast<std::size_t>(i)])
            value[i] = static_cast<char>(value[i] - ('a' - 'A'));
    }
    return value;
}

bool ValueTable::isValue(Number number, QByteArrayView utf8, QByteArrayView foldedForm) const
{
    if (folded(number) != foldedForm)
        return false;
    if (const auto other = _others.constFind(number); other != _others.cend())
        return *other == utf8;
    if (utf8.size() != foldedForm.size())
        return false;
    const std::size_t start = startOf(number);
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const bool capital = _isCapital[start + static_cast<std::size_t>(i)];
        if (capital ? utf8[i] != foldedForm[i] - ('a' - 'A') : utf8[i] != foldedForm[i])
            return false;
    }
    return true;
}

std::optional<ValueTable::Number> ValueTable::numberOf(QByteArrayView utf8)
{
    _room.resize(0);
    appendFolded(_room, utf8);
    const quint64 hash = qHash(QByteArrayView(_room));
    const Number known = _slots.find(hash, [&](Number number) { return isValue(number, utf8, _room); });
    if (known != Slots::kNone)
        return known;
    if (_folded.size() + _room.size() >= std::numeric_limits<quint32>::max())
        return std::nullopt;
    _slots.add(hash, [this](Number number) { return quint64{qHash(folded(number))}; });
    append(utf8);
    return static_cast<Number>(_size - 1);
}

void ValueTable::append(QByteArrayView utf8)
{
    const auto number = static_cast<Number>(_size++);
    const auto start = static_cast<std::size_t>(_folded.size());
    makeRoom(_folded, start + static_cast<std::size_t>(_room.size()) + 1);
    _folded += _room;
    _folded += kEnd;
    if (number % 2 == 0) {
        makeRoom(_starts, _starts.size() + 1);
        _starts.push_back(static_cast<quint32>(start));
    }
    _isCapital.resize(static_cast<std::size_t>(_folded.size()));
    if (isFoldedWithCapitals(utf8, _room)) {
        for (qsizetype i = 0; i < utf8.size(); ++i) {
            if (utf8[i] != _room[i])
                _isCapital.set(start + static_cast<std::size_t>(i));
        }
    } else {
        _others.insert(number, utf8.toByteArray());
    }
    appendQuantity(number, quantityOf(textOfUtf8(utf8)));
}

void ValueTable::appendQuantity(Number number, const Quantity &quantity)
{
    _isQuantity.resize(size());
    if (number % 64 == 0)
        _quantitiesBefore.push_back(static_cast<quint32>(_quantities.size()));
    if (quantity.kind == QuantityKind::Text)
        return;
    const Quantity measure{quantity.kind, 0, quantity.unit};
    const auto known = std::ranges::find(_measures, measure);
    makeRoom(_measureOf, _measureOf.size() + 1);
    _measureOf.push_back(static_cast<quint8>(known - _measures.begin()));
    if (known == _measures.end())
        _measures.push_back(measure);
    makeRoom(_quantities, _quantities.size() + 1);
    _quantities.push_back(quantity.value);
    _isQuantity.set(number);
}

Quantity ValueTable::quantity(Number number) const
{
    if (!_isQuantity[number])
        return {};
    const quint64 below = _isQuantity.word(number) & ((quint64{1} << (number % 64)) - 1);
    const std::size_t place = _quantitiesBefore[number / 64] + static_cast<std::size_t>(std::popcount(below));
    Quantity quantity = _measures[_measureOf[place]];
    quantity.value = _quantities[place];
    return quantity;
}

void ValueTable::markHaving(const SearchText &text, Marks &marks, Number first,
                            const std::stop_token &stop) const
{
    const QByteArray &needle = text.folded();
    const char *const begin = _folded.constData();
    const char *const end = begin + _folded.size();
    const char *place = first < _size ? begin + startOf(first) : end;
    auto pair = _starts.begin() + first / 2;
    std::size_t marked = 0;
    while (!needle.isEmpty() && (++marked % kMarksBetweenStops != 0 || !stop.stop_requested())) {
        const void *const hit = ::memmem(place, static_cast<std::size_t>(end - place), needle.constData(),
                                         static_cast<std::size_t>(needle.size()));
        if (!hit)
            return;
        const auto offset = static_cast<quint32>(static_cast<const char *>(hit) - begin);
        // Hits are often near, so steps that double find their values sooner than halves of all.
        std::ptrdiff_t step = 1;
        while (_starts.end() - pair > step && pair[step] <= offset)
            step *= 2;
        pair = std::upper_bound(pair, pair + std::min(step + 1, _starts.end() - pair), offset) - 1;
        const auto even = static_cast<Number>(2 * (pair - _starts.begin()));
        const quint32 odd = startOf(even + 1);
        marks.set(offset < odd ? even : even + 1);
        place = begin + (offset < odd ? odd : static_cast<quint32>(_folded.indexOf(kEnd, offset)) + 1);
    }
}

std::size_t ValueTable::bytes() const
{
    std::size_t others = 0;
    for (const QByteArray &value : _others)
        others += static_cast<std::size_t>(value.size()) + sizeof value + sizeof(Number);
    return static_cast<std::size_t>(_folded.capacity()) + _starts.capacity() * sizeof(quint32)
        + _isCapital.bytes() + _isQuantity.bytes() + _quantitiesBefore.capacity() * sizeof(quint32)
        + _quantities.capacity() * (sizeof(double) + sizeof(quint8)) + _slots.bytes() + others;
}

} // namespace quorvin
