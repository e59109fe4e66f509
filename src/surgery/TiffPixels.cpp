// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/TiffPixels.h"

#include <QtEndian>

#include <set>

namespace quorvin {

namespace {

enum Tag : quint16 {
    StripOffsets = 273,
    StripByteCounts = 279,
    TileOffsets = 324,
    TileByteCounts = 325,
    SubDirectories = 330,
    PictureOffset = 513,
    PictureLength = 514,
};

enum Type : quint16 { Short = 3, Long = 4, Directory = 13 };

constexpr std::size_t kMostDirectories = 256;
constexpr quint64 kEntryLength = 12;

class TiffReader {
public:
    explicit TiffReader(QByteArrayView file) : _file(file), _isBig(file.startsWith('M')) { }

    std::optional<std::vector<ImagePart>> pixels()
    {
        std::vector<quint32> directories{number<quint32>(4)};
        std::set<quint32> seen;
        // What a directory names comes behind it, in the order of their naming.
        for (std::size_t i = 0; i < directories.size() && _ok; ++i) {
            const quint32 at = directories[i];
            if (at == 0 || !seen.insert(at).second)
                continue;
            _ok = seen.size() <= kMostDirectories;
            readDirectory(at, directories);
        }
        return _ok ? std::optional(std::move(_parts)) : std::nullopt;
    }

private:
    template <typename Number>
    Number number(quint64 at)
    {
        _ok = _ok && at + sizeof(Number) <= static_cast<quint64>(_file.size());
        if (!_ok)
            return 0;
        const char *bytes = _file.data() + at;
        return _isBig ? qFromBigEndian<Number>(bytes) : qFromLittleEndian<Number>(bytes);
    }

    std::vector<quint32> valuesOf(quint64 entry)
    {
        const auto type = number<quint16>(entry + 2);
        const quint64 count = number<quint32>(entry + 4);
        const quint64 size = type == Short ? 2 : 4;
        const quint64 at = count * size <= 4 ? entry + 8 : number<quint32>(entry + 8);
        _ok = _ok && (type == Short || type == Long || type == Directory)
            && at + count * size <= static_cast<quint64>(_file.size());
        std::vector<quint32> values;
        for (quint64 i = 0; i < count && _ok; ++i)
            values.push_back(size == 2 ? number<quint16>(at + i * size) : number<quint32>(at + i * size));
        return values;
    }

    void readDirectory(quint64 at, std::vector<quint32> &directories)
    {
        const quint64 count = number<quint16>(at);
        std::vector<quint32> offsets;
        std::vector<quint32> lengths;
        for (quint64 i = 0; i < count && _ok; ++i) {
            const quint64 entry = at + 2 + i * kEntryLength;
            switch (number<quint16>(entry)) {
            case StripOffsets:
            case TileOffsets:
            case PictureOffset:
                append(offsets, valuesOf(entry));
                break;
            case StripByteCounts:
            case TileByteCounts:
            case PictureLength:
                append(lengths, valuesOf(entry));
                break;
            case SubDirectories:
                append(directories, valuesOf(entry));
                break;
            default:
                break;
            }
        }
        directories.push_back(number<quint32>(at + 2 + count * kEntryLength));
        addPixels(offsets, lengths);
    }

    static void append(std::vector<quint32> &values, const std::vector<quint32> &more)
    {
        values.insert(values.end(), more.begin(), more.end());
    }

    void addPixels(const std::vector<quint32> &offsets, const std::vector<quint32> &lengths)
    {
        _ok = _ok && offsets.size() == lengths.size();
        for (std::size_t i = 0; i < offsets.size() && _ok; ++i) {
            _ok = quint64{offsets[i]} + lengths[i] <= static_cast<quint64>(_file.size());
            if (_ok)
                _parts.push_back({"pixels", _file.sliced(offsets[i], lengths[i])});
        }
    }

    QByteArrayView _file;
    bool _isBig;
    bool _ok = true;
    std::vector<ImagePart> _parts;
};

} // namespace

std::optional<std::vector<ImagePart>> tiffPixels(QByteArrayView file)
{
    return TiffReader(file).pixels();
}

} // namespace quorvin
