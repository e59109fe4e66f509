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
constexpr ValueTable::Number kFree = std::numeric_limits<ValueTable::Number>::max();
constexpr std::size_t kFirstSlots = 1024;
constexpr std::size_t kMarksBetweenStops = 4096;

bool isCapital(char c)
{
    return c >= 'A' && c <= 'Z';
}

/// Where to look first among so many slots.
std::size_t firstSlot(QByteArrayView foldedForm, std::size_t slots)
{
    const quint64 mixed = quint64{qHash(foldedForm)} * 0x9e3779b97f4a7c15U;
    return static_cast<std::size_t>((mixed >> 32U) * slots >> 32U);
}

std::size_t slotAfter(std::size_t slot, std::size_t slots)
{
    return slot + 1 == slots ? 0 : slot + 1;
}

/// Whether a value is its folded form but for capitals of ASCII.
bool isFoldedWithCapitals(QByteArrayView utf8, QByteArrayView folded)
{
    return std::ranges::equal(
        utf8, folded, [](char c, char low) { return c == low || (isCapital(c) && c + ('a' - 'A') == low); });
}

} // namespace

ValueTable::ValueTable() : _slots(kFirstSlots, kFree) { }

QByteArrayView ValueTable::folded(Number number) const
{
    const quint32 start = _starts[number];
    return QByteArrayView(_folded).sliced(start, _starts[number + 1] - start - 1);
}

QByteArray ValueTable::value(Number number) const
{
    if (const auto other = _others.constFind(number); other != _others.cend())
        return *other;
    QByteArray value = folded(number).toByteArray();
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (_isCapital[_starts[number] + static_cast<std::size_t>(i)])
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
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const bool capital = _isCapital[_starts[number] + static_cast<std::size_t>(i)];
        if (capital ? utf8[i] != foldedForm[i] - ('a' - 'A') : utf8[i] != foldedForm[i])
            return false;
    }
    return true;
}

std::size_t ValueTable::slotOf(QByteArrayView utf8, QByteArrayView foldedForm) const
{
    std::size_t slot = firstSlot(foldedForm, _slots.size());
    while (_slots[slot] != kFree && !isValue(_slots[slot], utf8, foldedForm))
        slot = slotAfter(slot, _slots.size());
    return slot;
}

std::optional<ValueTable::Number> ValueTable::numberOf(QByteArrayView utf8)
{
    _room.resize(0);
    appendFolded(_room, utf8);
    std::size_t slot = slotOf(utf8, _room);
    if (_slots[slot] != kFree)
        return _slots[slot];
    if (_folded.size() + _room.size() >= std::numeric_limits<quint32>::max())
        return std::nullopt;
    if (size() * 10 >= _slots.size() * 8) {
        grow();
        slot = slotOf(utf8, _room);
    }
    _slots[slot] = static_cast<Number>(size());
    append(utf8);
    return static_cast<Number>(size() - 1);
}

void ValueTable::append(QByteArrayView utf8)
{
    const auto number = static_cast<Number>(size());
    const auto start = static_cast<std::size_t>(_folded.size());
    makeRoom(_folded, start + static_cast<std::size_t>(_room.size()) + 1);
    _folded += _room;
    _folded += kEnd;
    makeRoom(_starts, _starts.size() + 1);
    _starts.push_back(static_cast<quint32>(_folded.size()));
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

void ValueTable::grow()
{
    _slots = std::vector(_slots.size() * 3 / 2, kFree);
    for (Number number = 0; number < size(); ++number) {
        std::size_t slot = firstSlot(folded(number), _slots.size());
        while (_slots[slot] != kFree)
            slot = slotAfter(slot, _slots.size());
        _slots[slot] = number;
    }
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
    const char *place = begin + _starts[first];
    auto value = _starts.begin() + first;
    std::size_t marked = 0;
    while (!needle.isEmpty() && (++marked % kMarksBetweenStops != 0 || !stop.stop_requested())) {
        const void *const hit = ::memmem(place, static_cast<std::size_t>(end - place), needle.constData(),
                                         static_cast<std::size_t>(needle.size()));
        if (!hit)
            return;
        const auto offset = static_cast<quint32>(static_cast<const char *>(hit) - begin);
        // Hits are often near, so steps that double find their value sooner than halves of all.
        std::ptrdiff_t step = 1;
        while (_starts.end() - value > step && value[step] <= offset)
            step *= 2;
        value = std::upper_bound(value, value + std::min(step + 1, _starts.end() - value), offset) - 1;
        marks.set(static_cast<std::size_t>(value - _starts.begin()));
        place = begin + value[1];
    }
}

std::size_t ValueTable::bytes() const
{
    std::size_t others = 0;
    for (const QByteArray &value : _others)
        others += static_cast<std::size_t>(value.size()) + sizeof value + sizeof(Number);
    return static_cast<std::size_t>(_folded.capacity()) + _starts.capacity() * sizeof(quint32)
        + _isCapital.bytes() + _isQuantity.bytes() + _quantitiesBefore.capacity() * sizeof(quint32)
        + _quantities.capacity() * (sizeof(double) + sizeof(quint8)) + _slots.capacity() * sizeof(Number)
        + others;
}

} // namespace quorvin
