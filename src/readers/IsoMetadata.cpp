// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/IsoMetadata.h"

#include "model/FailureKind.h"
#include "platform/RegularFile.h"

#include <QByteArrayList>
#include <QStringDecoder>
#include <QStringList>
#include <QtEndian>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace quorvin {

namespace {

constexpr quint64 kMostItemBytes = 16 << 20;
constexpr std::size_t kMostItems = 10'000; ///< a hostile file has no end of them
constexpr qsizetype kMostRawBytes = 200; ///< are shown

struct IsoBox {
    QByteArray type; ///< four bytes
    quint64 begin = 0; ///< of its content
    quint64 end = 0; ///< within what it lies in
};

struct IsoItem {
    QString identifier;
    QString dataType;
    QString locale;
    QByteArray value;
};

struct IsoDataType {
    quint32 number;
    const char *name;
};

constexpr std::array kIsoDataTypes{
    IsoDataType{1, "UTF-8"},    IsoDataType{2, "UTF-16"},   IsoDataType{13, "JPEG"},
    IsoDataType{14, "PNG"},     IsoDataType{21, "int"},     IsoDataType{22, "unsigned-int"},
    IsoDataType{23, "float32"}, IsoDataType{24, "float64"}, IsoDataType{27, "BMP"},
    IsoDataType{65, "int8"},    IsoDataType{66, "int16"},   IsoDataType{67, "int32"},
    IsoDataType{74, "int64"},
};

QString isoDataTypeOf(quint32 number)
{
    const auto known
        = std::ranges::find_if(kIsoDataTypes, [&](const IsoDataType &row) { return row.number == number; });
    return QLatin1String("com.apple.metadata.datatype.")
        + QLatin1String(known == kIsoDataTypes.end() ? "raw-data" : known->name);
}

/// Three letters of five bits each, of a language of ISO 639; "" for another code.
QString languageOf(quint16 code)
{
    QString letters;
    for (const unsigned shift : {10U, 5U, 0U})
        letters += QChar(static_cast<char16_t>(0x60U + ((static_cast<unsigned>(code) >> shift) & 0x1FU)));
    const bool isLanguage
        = std::ranges::all_of(letters, [](QChar letter) { return letter >= u'a' && letter <= u'z'; });
    return isLanguage && code != 0x7FFF ? letters : QString();
}

/// Letters as they are, other bytes as "%A9".
QString nameOfBox(const QByteArray &type)
{
    return QString::fromLatin1(type.toPercentEncoding(" -"));
}

/// Reads the boxes of a file; the places are bytes from its start.
class BoxReader {
public:
    explicit BoxReader(const RegularFile &file) : _file(file) { }

    QByteArray bytes(quint64 place, quint64 length) const
    {
        QByteArray bytes(static_cast<qsizetype>(std::min(length, kMostItemBytes)), '\0');
        const ssize_t count = ::pread(_file.descriptor(), bytes.data(),
                                      static_cast<std::size_t>(bytes.size()), static_cast<off_t>(place));
        bytes.truncate(std::max<ssize_t>(count, 0));
        return bytes;
    }
    QByteArray content(const IsoBox &box) const { return bytes(box.begin, box.end - box.begin); }

    std::vector<IsoBox> boxes(quint64 place, quint64 end) const
    {
        std::vector<IsoBox> found;
        while (found.size() < kMostItems) {
            const auto box = boxAt(place, end);
            if (!box)
                break;
            found.push_back(*box);
            place = box->end;
        }
        return found;
    }
    /// The first of that type; absent when there is none.
    std::optional<IsoBox> child(const IsoBox &parent, QByteArrayView type) const
    {
        for (const IsoBox &box : boxes(parent.begin, parent.end)) {
            if (box.type == type)
                return box;
        }
        return std::nullopt;
    }

private:
    std::optional<IsoBox> boxAt(quint64 place, quint64 end) const
    {
        constexpr quint64 kHead = 8;
        constexpr quint64 kLongHead = 16;
        const QByteArray head = bytes(place, std::min(kLongHead, end - std::min(place, end)));
        if (static_cast<quint64>(head.size()) < kHead)
            return std::nullopt;
        quint64 size = qFromBigEndian<quint32>(head.constData());
        quint64 headSize = kHead;
        if (size == 1 && static_cast<quint64>(head.size()) == kLongHead) {
            size = qFromBigEndian<quint64>(head.constData() + kHead);
            headSize = kLongHead;
        } else if (size == 0) {
            size = end - place;
        }
        if (size < headSize || size > end - place)
            return std::nullopt;
        return IsoBox{head.sliced(4, 4), place + headSize, place + size};
    }

    const RegularFile &_file;
};

/// The name of each item of a list whose items have numbers, as the box "keys" has them.
QStringList keysIn(const BoxReader &reader, const IsoBox &meta)
{
    constexpr quint64 kCounted = 8; ///< version, flags and the number of keys
    QStringList names;
    if (const auto keys = reader.child(meta, "keys")) {
        for (const IsoBox &key : reader.boxes(keys->begin + kCounted, keys->end))
            names.append(nameOfBox(key.type) + u'/' + QString::fromUtf8(reader.content(key)));
    }
    return names;
}

/// What an item of a list is called.
QString identifierOf(const BoxReader &reader, const IsoBox &item, const QStringList &keys)
{
    if (!keys.isEmpty())
        return keys.value(static_cast<qsizetype>(qFromBigEndian<quint32>(item.type.constData())) - 1);
    if (item.type != "----")
        return QLatin1String("itsk/") + nameOfBox(item.type);
    QStringList parts;
    for (const char *part : {"mean", "name"}) {
        if (const auto box = reader.child(item, part))
            parts.append(QString::fromUtf8(reader.content(*box).mid(4)));
    }
    return QLatin1String("itlk/") + parts.join(u'.');
}

/// A list of items, as it stands in a box "meta".
std::vector<IsoItem> itemsOfList(const BoxReader &reader, IsoBox meta, bool &hasKeys)
{
    constexpr quint64 kVersion = 4;
    constexpr qsizetype kHead = 8; ///< of a value: type and locale
    // The one kind of file has version and flags there, the other has not.
    if (reader.bytes(meta.begin + kVersion, 4) != "hdlr")
        meta.begin += kVersion;
    const QStringList keys = keysIn(reader, meta);
    hasKeys = !keys.isEmpty();
    std::vector<IsoItem> items;
    const auto list = reader.child(meta, "ilst");
    for (const IsoBox &item : list ? reader.boxes(list->begin, list->end) : std::vector<IsoBox>()) {
        for (const IsoBox &box : reader.boxes(item.begin, item.end)) {
            const QByteArray data = box.type == "data" ? reader.content(box) : QByteArray();
            if (data.size() < kHead)
                continue;
            items.push_back({identifierOf(reader, item, keys),
                             isoDataTypeOf(qFromBigEndian<quint32>(data.constData()) & 0xFFFFFFU),
                             languageOf(qFromBigEndian<quint16>(data.constData() + 6)), data.mid(kHead)});
        }
    }
    return items;
}

/// Texts with their lengths and languages, where the type begins with the sign of copyright; else raw bytes.
std::vector<IsoItem> itemsOfUserData(const BoxReader &reader, const IsoBox &userData)
{
    constexpr qsizetype kHead = 4; ///< length and language
    std::vector<IsoItem> items;
    for (const IsoBox &box : reader.boxes(userData.begin, userData.end)) {
        if (box.type == "meta")
            continue;
        const QString identifier = QLatin1String("udta/") + nameOfBox(box.type);
        QByteArray rest = reader.content(box);
        if (!box.type.startsWith('\xA9')) {
            items.push_back({identifier, isoDataTypeOf(0), {}, rest});
            continue;
        }
        while (rest.size() > kHead && items.size() < kMostItems) {
            const auto length = static_cast<qsizetype>(qFromBigEndian<quint16>(rest.constData()));
            const QString locale = languageOf(qFromBigEndian<quint16>(rest.constData() + 2));
            items.push_back({identifier, isoDataTypeOf(1), locale, rest.mid(kHead, length)});
            rest = rest.mid(kHead + length);
        }
    }
    return items;
}

/// Absent for bytes that are no UTF-8.
std::optional<QString> utf8TextOf(const QByteArray &bytes)
{
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decode(bytes);
    return decode.hasError() ? std::nullopt : std::optional(text);
}

void tellFormat(const QString &format, const std::vector<IsoItem> &items, QStringList &lines)
{
    if (items.empty())
        return;
    lines.append(format);
    lines.append(QStringLiteral("============================"));
    for (const IsoItem &item : items) {
        const bool isText = item.dataType == isoDataTypeOf(1);
        const auto text = utf8TextOf(item.value);
        const QString none = QStringLiteral("(null)");
        lines.append(QStringLiteral("identifier=%1, dataType=%2, locale=%3, length=%4, str=%5")
                         .arg(item.identifier, item.dataType, item.locale.isEmpty() ? none : item.locale,
                              QString::number(item.value.size()), isText ? text.value_or(none) : none));
        if (item.dataType == isoDataTypeOf(0))
            lines.append(QString::fromLatin1(
                item.value.first(std::min(kMostRawBytes, item.value.size())).toHex().toUpper()));
        if (text)
            lines.append(*text);
    }
    lines.append(QString());
}

} // namespace

Expected<QString> isoMetadataReport(const QString &path)
{
    const auto file = RegularFile::open(path);
    if (!file)
        return tl::unexpected(file.error());
    const BoxReader reader(*file);
    const auto movie = reader.child({{}, 0, file->size()}, "moov");
    if (!movie)
        return failure(FailureKind::NotUnderstood);
    QStringList lines{QStringLiteral("Metadata Formats:\n")};
    const auto userData = reader.child(*movie, "udta");
    for (const auto &place : {movie, userData}) {
        const auto meta = place ? reader.child(*place, "meta") : std::nullopt;
        bool hasKeys = false;
        const std::vector<IsoItem> items
            = meta ? itemsOfList(reader, *meta, hasKeys) : std::vector<IsoItem>();
        tellFormat(hasKeys ? QStringLiteral("com.apple.quicktime.mdta") : QStringLiteral("com.apple.itunes"),
                   items, lines);
    }
    if (userData)
        tellFormat(QStringLiteral("com.apple.quicktime.udta"), itemsOfUserData(reader, *userData), lines);
    return lines.join(u'\n');
}

} // namespace quorvin
