// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PropertyListJoiner.h"

#include <limits>

namespace quorvin {

namespace {

constexpr qsizetype kMaxTexts = 32'768;
constexpr qsizetype kMaxTextSize = 64;
constexpr int kReferenceSize = 4;

void appendNumber(QByteArray &to, quint64 number, int size)
{
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        to.append(static_cast<char>(number >> shift));
}

} // namespace

void PropertyListJoiner::add(QByteArrayView list)
{
    const BinaryPropertyList source(list);
    // A container names its elements before they come, so all get their places first.
    auto next = static_cast<quint32>(_objects);
    std::vector<quint32> places;
    for (quint64 i = 0; i < source.objectCount(); ++i)
        places.push_back(placeOf(source.object(i)));
    _lists.push_back(places.front());

    for (quint64 i = 0; i < source.objectCount(); ++i) {
        if (places[i] != next)
            continue; // a text that is there already
        ++next;
        const auto object = source.object(i);
        if (object.isText()) {
            putObject(object.whole);
            continue;
        }
        std::vector<quint32> references;
        for (quint64 j = 0; j < source.referenceCount(object); ++j)
            references.push_back(places[source.reference(object, j)]);
        putContainer(object.type, object.count, references);
    }
}

Expected<void> PropertyListJoiner::finish()
{
    const quint64 root = _objects++;
    putContainer(BinaryPropertyList::List, _lists.size(), _lists);
    if (_objects > std::numeric_limits<quint32>::max())
        return failure(QStringLiteral("too much for a property list"));
    const quint64 offsetTable = _written;
    int offsetSize = 1;
    while (offsetSize < 8 && offsetTable >> (8 * offsetSize) != 0)
        ++offsetSize;
    putOffsets(offsetSize);

    QByteArray trailer(6, '\0');
    appendNumber(trailer, static_cast<quint64>(offsetSize), 1);
    appendNumber(trailer, kReferenceSize, 1);
    for (const quint64 number : {_objects, root, offsetTable})
        appendNumber(trailer, number, 8);
    put(trailer);
    return {};
}

quint32 PropertyListJoiner::placeOf(const BinaryPropertyList::Object &object)
{
    const auto place = static_cast<quint32>(_objects);
    if (object.isText() && object.whole.size() <= kMaxTextSize) {
        const QByteArray text = object.whole.toByteArray();
        if (const auto known = _texts.constFind(text); known != _texts.cend())
            return *known;
        if (_texts.size() < kMaxTexts)
            _texts.insert(text, place);
    }
    ++_objects;
    return place;
}

void PropertyListJoiner::putContainer(BinaryPropertyList::Type type, quint64 count,
                                      const std::vector<quint32> &references)
{
    // The marker says that the count follows as a number of four bytes.
    QByteArray object;
    object.append(static_cast<char>(type | 0x0f)).append(0x12);
    appendNumber(object, count, 4);
    for (const quint32 reference : references)
        appendNumber(object, reference, kReferenceSize);
    putObject(object);
}

void PropertyListJoiner::putObject(QByteArrayView object)
{
    auto size = static_cast<quint64>(object.size());
    for (; size >= 0x80; size >>= 7)
        _sizes.append(static_cast<char>(size | 0x80));
    _sizes.append(static_cast<char>(size));
    put(object);
}

void PropertyListJoiner::putOffsets(int offsetSize)
{
    auto offset = static_cast<quint64>(BinaryPropertyList::kMagic.size());
    quint64 size = 0;
    int shift = 0;
    QByteArray number;
    for (const char byte : std::as_const(_sizes)) {
        size |= static_cast<quint64>(byte & 0x7f) << shift;
        shift += 7;
        if (byte & 0x80)
            continue;
        number.resize(0);
        appendNumber(number, offset, offsetSize);
        put(number);
        offset += size;
        size = 0;
        shift = 0;
    }
}

void PropertyListJoiner::put(QByteArrayView bytes)
{
    _written += static_cast<quint64>(bytes.size());
    _write(bytes);
}

} // namespace quorvin
