// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "platform/BinaryPropertyList.h"

#include <QByteArray>
#include <QHash>

#include <functional>
#include <vector>

namespace quorvin {

/// Joins binary property lists into one, which is a list of them. Takes them one by one and passes the bytes
/// on as they come: libplist needs the whole in memory, and its time grows with the square of what it writes.
/// A short text that comes again is stored once. Takes a byte or two of memory for each object. One thread.
class PropertyListJoiner {
public:
    explicit PropertyListJoiner(std::function<void(QByteArrayView)> write) : _write(std::move(write)) { }

    void begin() { put(BinaryPropertyList::kMagic); }
    /// Made by a `PropertyListBuilder`.
    void add(QByteArrayView list);
    /// Fails for a list of more objects than a property list can number.
    Expected<void> finish();

private:
    quint32 placeOf(const BinaryPropertyList::Object &object);
    void putContainer(BinaryPropertyList::Type type, quint64 count, const std::vector<quint32> &references);
    void putObject(QByteArrayView object);
    void putOffsets(int offsetSize);
    void put(QByteArrayView bytes);

    std::function<void(QByteArrayView)> _write;
    quint64 _written = 0;
    quint64 _objects = 0;
    QByteArray _sizes; ///< of the objects, in order, as numbers of seven bits a byte
    QHash<QByteArray, quint32> _texts; ///< text objects to their places
    std::vector<quint32> _lists; ///< the places of what was added
};

} // namespace quorvin
