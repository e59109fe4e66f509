// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/JpegScans.h"

#include <QByteArray>
#include <QIODevice>

#include <optional>

namespace quorvin {

namespace {

enum Mark : unsigned char {
    StuffedByte = 0x00,
    FirstRestart = 0xd0,
    LastRestart = 0xd7,
    StartOfImage = 0xd8,
    EndOfImage = 0xd9,
    ProgressiveFrame = 0xc2,
    ProgressiveArithmeticFrame = 0xca,
    StartOfScan = 0xda,
    Fill = 0xff,
};

/// The marks of a JPEG, one by one.
class MarkReader {
public:
    explicit MarkReader(QIODevice &device) : _device(device) { }

    bool beginsAsJpeg() { return byte() == Fill && byte() == StartOfImage; }

    /// The next mark that is not part of the data of a scan; absent at the end.
    std::optional<unsigned char> next()
    {
        while (passFill()) {
            auto code = byte();
            while (code == Fill)
                code = byte();
            if (code && *code != StuffedByte && (*code < FirstRestart || *code > LastRestart))
                return code;
        }
        return std::nullopt;
    }

    /// What follows a mark and says its own length.
    void skipSegment()
    {
        const int high = byte().value_or(0);
        const int length = high << 8 | byte().value_or(0);
        for (int i = 2; i < length && byte(); ++i) { }
    }

private:
    /// False at the end.
    bool hasMore()
    {
        constexpr qint64 kPiece = 65'536;
        if (_at == _piece.size()) {
            _piece = _device.read(kPiece);
            _at = 0;
        }
        return !_piece.isEmpty();
    }

    std::optional<unsigned char> byte()
    {
        if (!hasMore())
            return std::nullopt;
        return static_cast<unsigned char>(_piece[_at++]);
    }

    /// Goes behind the next byte that may begin a mark, past all pixels before it; false at the end.
    bool passFill()
    {
        while (hasMore()) {
            const qsizetype found = _piece.indexOf(static_cast<char>(Fill), _at);
            _at = found < 0 ? _piece.size() : found + 1;
            if (found >= 0)
                return true;
        }
        return false;
    }

    QIODevice &_device;
    QByteArray _piece;
    qsizetype _at = 0;
};

} // namespace

JpegScans scansOf(QIODevice &device)
{
    const qint64 start = device.pos();
    JpegScans scans;
    MarkReader marks(device);
    if (marks.beginsAsJpeg()) {
        for (auto mark = marks.next(); mark && *mark != EndOfImage; mark = marks.next()) {
            if (*mark == ProgressiveFrame || *mark == ProgressiveArithmeticFrame)
                scans.isProgressive = true;
            if (*mark == StartOfScan && ++scans.count == kCountedScans)
                break;
            marks.skipSegment();
        }
    }
    device.seek(start);
    return scans;
}

} // namespace quorvin
