// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArrayView>
#include <QtEndian>

namespace quorvin {

/// The objects of a binary property list of maps, lists and texts, where they lie. The bytes are trusted:
/// they come from libplist.
class BinaryPropertyList {
public:
    enum Type : unsigned char { Text = 0x50, WideText = 0x60, List = 0xa0, Map = 0xd0 };

    struct Object {
        Type type;
        quint64 count; ///< of characters, elements or entries
        QByteArrayView whole;
        qsizetype headerSize;

        bool isText() const { return type == Text || type == WideText; }
    };

    static constexpr QByteArrayView kMagic = "bplist00";
    static constexpr qsizetype kTrailerSize = 32;

    explicit BinaryPropertyList(QByteArrayView bytes) : _bytes(bytes) { }

    /// False for a list of which the end is missing.
    bool isWhole() const;
    quint64 objectCount() const { return number(_bytes.size() - 24, 8); }
    Object object(quint64 index) const;
    /// The elements of a list; the keys of a map, then its values.
    quint64 referenceCount(const Object &object) const;
    quint64 reference(const Object &object, quint64 number) const;

private:
    quint64 number(qsizetype at, int size) const;
    int offsetSize() const { return _bytes[_bytes.size() - 26]; }
    int referenceSize() const { return _bytes[_bytes.size() - 25]; }
    quint64 offsetTable() const { return number(_bytes.size() - 8, 8); }

    QByteArrayView _bytes;
};

} // namespace quorvin
