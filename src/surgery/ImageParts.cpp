// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/ImageParts.h"

#include "surgery/TiffPixels.h"

#include <QtEndian>

#include <array>

namespace quorvin {

namespace {

/// Reads on from piece to piece. What would lead past the end gives nothing, and from then on all is lost.
class Cursor {
public:
    explicit Cursor(QByteArrayView bytes) : _rest(bytes) { }

    bool atEnd() const { return _rest.isEmpty(); }
    bool isLost() const { return _isLost; }
    QByteArrayView rest() const { return _rest; }
    QByteArrayView take(quint64 count)
    {
        _isLost = _isLost || count > static_cast<quint64>(_rest.size());
        if (_isLost)
            return {};
        const QByteArrayView taken = _rest.first(static_cast<qsizetype>(count));
        _rest = _rest.sliced(taken.size());
        return taken;
    }
    template <typename Number>
    Number big()
    {
        const QByteArrayView raw = take(sizeof(Number));
        return raw.isEmpty() ? Number{} : qFromBigEndian<Number>(raw.data());
    }
    template <typename Number>
    Number little()
    {
        const QByteArrayView raw = take(sizeof(Number));
        return raw.isEmpty() ? Number{} : qFromLittleEndian<Number>(raw.data());
    }

private:
    QByteArrayView _rest;
    bool _isLost = false;
};

using Parts = std::optional<std::vector<ImagePart>>;

constexpr quint16 kIptcResource = 0x0404;
constexpr quint16 kIptcDigestResource = 0x0425;
constexpr quint16 kExifResource = 0x0422;
constexpr quint16 kSecondExifResource = 0x0423;
constexpr quint16 kXmpResource = 0x0424;

ImagePart::Kind kindOfResource(quint16 number)
{
    switch (number) {
    case kIptcResource:
        return ImagePart::Iptc;
    case kExifResource:
    case kSecondExifResource:
        return ImagePart::Exif;
    case kXmpResource:
        return ImagePart::Xmp;
    default:
        return ImagePart::Picture;
    }
}

/// The blocks that Photoshop leaves in its own files and in JPEGs.
void addResources(Cursor blocks, std::vector<ImagePart> &parts)
{
    while (!blocks.atEnd() && !blocks.isLost()) {
        const QByteArrayView block = blocks.rest();
        blocks.take(4);
        const auto number = blocks.big<quint16>();
        const quint64 name = blocks.big<quint8>();
        blocks.take(name + (name + 1) % 2);
        const quint64 size = blocks.big<quint32>();
        const QByteArrayView data = blocks.take(size);
        if (size % 2 == 1 && !blocks.atEnd())
            blocks.take(1);
        if (blocks.isLost())
            parts.push_back({"Photoshop block", block});
        else if (number != kIptcDigestResource && !data.isEmpty())
            parts.push_back({"Photoshop block " + QByteArray::number(number), data, kindOfResource(number)});
    }
}

constexpr quint8 kFirstApplicationMark = 0xe0;

/// With what an application calls its own.
QByteArray nameOfSegment(quint8 mark, QByteArrayView segment)
{
    const QByteArray name = "segment " + QByteArray::number(mark, 16);
    const qsizetype end = segment.indexOf('\0');
    const bool isNamed = mark > kFirstApplicationMark && mark < kFirstApplicationMark + 16 && end > 0;
    return isNamed ? name + ' ' + segment.first(end).toByteArray() : name;
}

/// A segment of a JPEG, its mark and length left out.
void addSegment(quint8 mark, QByteArrayView segment, std::vector<ImagePart> &parts)
{
    constexpr QByteArrayView kPhotoshop("Photoshop 3.0\0", 14);
    const bool isFirstApplication = mark == kFirstApplicationMark + 1;
    if (isFirstApplication && segment.startsWith(QByteArrayView("Exif\0\0", 6)))
        parts.push_back({"Exif", segment, ImagePart::Exif});
    else if (isFirstApplication && segment.startsWith("http://ns.adobe.com/x"))
        parts.push_back({"XMP", segment, ImagePart::Xmp});
    else if (mark == kFirstApplicationMark + 13 && segment.startsWith(kPhotoshop))
        addResources(Cursor(segment.sliced(kPhotoshop.size())), parts);
    else
        parts.push_back({nameOfSegment(mark, segment), segment});
}

Parts partsOfJpeg(QByteArrayView file)
{
    constexpr quint8 kMark = 0xff;
    constexpr quint8 kScan = 0xda;
    std::vector<ImagePart> parts;
    Cursor cursor(file.sliced(2));
    while (!cursor.isLost()) {
        if (cursor.big<quint8>() != kMark)
            return std::nullopt;
        const auto mark = cursor.big<quint8>();
        if (mark == kScan) {
            parts.push_back({"scan data", cursor.rest()});
            return parts;
        }
        const auto length = cursor.big<quint16>();
        if (length < 2)
            return std::nullopt;
        const QByteArrayView all = cursor.rest();
        const QByteArrayView segment = cursor.take(length - 2U);
        if (!cursor.isLost())
            addSegment(mark, segment, parts);
        // It counts from itself to the pictures that follow the first.
        if (segment.startsWith(QByteArrayView("MPF\0", 4)))
            parts.push_back({"index of pictures", all});
    }
    return std::nullopt;
}

/// A profile of text is Exif, IPTC or XMP as ImageMagick writes them.
ImagePart::Kind kindOfChunk(QByteArrayView type, QByteArrayView data)
{
    const bool isText = type == "iTXt" || type == "zTXt" || type == "tEXt";
    if (type == "eXIf" || (isText && data.startsWith("Raw profile type exif"))
        || (isText && data.startsWith("Raw profile type APP1")))
        return ImagePart::Exif;
    if (isText && data.startsWith("Raw profile type iptc"))
        return ImagePart::Iptc;
    return isText && (data.startsWith("XML:com.adobe.xmp") || data.startsWith("Raw profile type xmp"))
        ? ImagePart::Xmp
        : ImagePart::Picture;
}

Parts partsOfPng(QByteArrayView file)
{
    constexpr qsizetype kSignature = 8;
    std::vector<ImagePart> parts;
    Cursor cursor(file.sliced(kSignature));
    while (!cursor.isLost() && !cursor.atEnd()) {
        const quint64 length = cursor.big<quint32>();
        const QByteArrayView type = cursor.take(4);
        const QByteArrayView data = cursor.take(length);
        cursor.take(4);
        if (!cursor.isLost())
            parts.push_back({"chunk " + type.toByteArray(), data, kindOfChunk(type, data)});
        if (type == "IEND")
            break;
    }
    return cursor.isLost() ? Parts() : std::move(parts);
}

Parts partsOfWebp(QByteArrayView file)
{
    constexpr qsizetype kHeader = 12;
    constexpr char kMetadataFlags = 0x0c; ///< that the file has Exif, and XMP
    std::vector<ImagePart> parts;
    Cursor cursor(file.sliced(kHeader));
    while (!cursor.isLost() && !cursor.atEnd()) {
        const QByteArrayView type = cursor.take(4);
        const quint64 length = cursor.little<quint32>();
        const QByteArrayView data = cursor.take(length);
        if (length % 2 == 1 && !cursor.atEnd())
            cursor.take(1);
        if (cursor.isLost())
            return std::nullopt;
        // Its first byte is of flags, which follow what the file has.
        if (type == "VP8X" && !data.isEmpty())
            parts.push_back({data[0] & ~kMetadataFlags ? "flags of features" : "no flags", data.sliced(1)});
        else
            parts.push_back({"chunk " + type.toByteArray(), data,
                             type == "EXIF"       ? ImagePart::Exif
                                 : type == "XMP " ? ImagePart::Xmp
                                                  : ImagePart::Picture});
    }
    return cursor.isLost() ? Parts() : std::move(parts);
}

Parts partsOfPsd(QByteArrayView file)
{
    constexpr quint64 kHeader = 26;
    std::vector<ImagePart> parts;
    Cursor cursor(file);
    parts.push_back({"header", cursor.take(kHeader)});
    const quint64 colors = cursor.big<quint32>();
    parts.push_back({"colours", cursor.take(colors)});
    const quint64 resources = cursor.big<quint32>();
    addResources(Cursor(cursor.take(resources)), parts);
    parts.push_back({"layers and pixels", cursor.rest()});
    return cursor.isLost() ? Parts() : std::move(parts);
}

/// Exif, IPTC and XMP stand in boxes of this type.
constexpr QByteArrayView kForeignBox("uuid");

Parts partsOfJpeg2000(QByteArrayView file)
{
    std::vector<ImagePart> parts;
    Cursor cursor(file);
    while (!cursor.isLost() && !cursor.atEnd()) {
        const quint64 length = cursor.big<quint32>();
        const QByteArrayView type = cursor.take(4);
        // 0 is all that follows; 1 has the length in eight more bytes.
        const quint64 header = length == 1 ? 16 : 8;
        const quint64 whole = length == 1 ? cursor.big<quint64>() : length;
        if (length != 0 && whole < header)
            return std::nullopt;
        const auto all = static_cast<quint64>(cursor.rest().size());
        const QByteArrayView data = cursor.take(length == 0 ? all : whole - header);
        if (!cursor.isLost() && type != kForeignBox)
            parts.push_back({"box " + type.toByteArray(), data});
    }
    return cursor.isLost() ? Parts() : std::move(parts);
}

struct Format {
    QByteArrayView start;
    Parts (*parts)(QByteArrayView file);
};

constexpr std::array kFormats{
    Format{QByteArrayView("\xff\xd8", 2), partsOfJpeg},
    Format{QByteArrayView("\x89PNG\r\n\x1a\n", 8), partsOfPng},
    Format{QByteArrayView("RIFF", 4), partsOfWebp},
    Format{QByteArrayView("8BPS", 4), partsOfPsd},
    Format{QByteArrayView("\0\0\0\x0cjP  ", 8), partsOfJpeg2000},
    Format{QByteArrayView("II", 2), tiffPixels},
    Format{QByteArrayView("MM", 2), tiffPixels},
};

} // namespace

std::optional<std::vector<ImagePart>> imagePartsOf(QByteArrayView file)
{
    const auto format
        = std::ranges::find_if(kFormats, [&](const Format &each) { return file.startsWith(each.start); });
    if (format == kFormats.end() || (format->parts == partsOfWebp && !file.sliced(4).contains("WEBP")))
        return std::nullopt;
    return format->parts(file);
}

} // namespace quorvin
