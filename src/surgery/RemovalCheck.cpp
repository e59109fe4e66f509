// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/RemovalCheck.h"

#include "readers/image/Exiv2Library.h"
#include "surgery/ImageParts.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// They say where something stands, or have a second time what the items of IPTC and XMP tell.
constexpr std::array<std::string_view, 10> kFollowingTags{
    "ExifTag",
    "GPSTag",
    "SubIFDs",
    "StripOffsets",
    "TileOffsets",
    "InteroperabilityTag",
    "JPEGInterchangeFormat",
    "XMLPacket",
    "IPTCNAA",
    "ImageResources",
};
constexpr std::array<std::string_view, 2> kFollowingKeys{"Exif.MakerNote.Offset", "Exif.MakerNote.ByteOrder"};
constexpr char kNotAll[] = QT_TRANSLATE_NOOP("RemovalCheck", "not all of it can be removed");
constexpr char kMakerNoteBlock[] = "Exif.Photo.MakerNote";

QString checkText(const char *words)
{
    return QCoreApplication::translate("RemovalCheck", words);
}

tl::unexpected<Error> wouldLose(const QString &what)
{
    return failure(
        checkText(QT_TRANSLATE_NOOP("RemovalCheck", "it can not be rewritten without loss (%1)")).arg(what));
}

struct Item {
    std::string key;
    std::string bytes;

    bool operator==(const Item &) const = default;
};

bool isMakerNoteItem(const Exiv2::Exifdatum &datum)
{
    return std::strcmp(datum.ifdName(), "Makernote") == 0;
}

/// A maker note is compared item by item, or as the block that it is where it can't be read.
bool follows(const Exiv2::Exifdatum &datum, bool readsMakerNote)
{
    const std::string key = datum.key();
    return std::ranges::find(kFollowingTags, std::string_view(datum.tagName())) != kFollowingTags.end()
        || std::ranges::find(kFollowingKeys, std::string_view(key)) != kFollowingKeys.end()
        || (readsMakerNote ? key == kMakerNoteBlock : isMakerNoteItem(datum));
}

std::string bytesOf(const Exiv2::Exifdatum &datum)
{
    std::string bytes(static_cast<std::size_t>(datum.size()), '\0');
    if (!bytes.empty())
        datum.copy(reinterpret_cast<Exiv2::byte *>(bytes.data()), Exiv2::bigEndian);
    return bytes;
}

void addExif(const Exiv2::ExifData &exif, bool readsMakerNote, std::vector<Item> &items)
{
    for (const Exiv2::Exifdatum &datum : exif) {
        if (!follows(datum, readsMakerNote))
            items.push_back({datum.key(), bytesOf(datum)});
    }
    const Exiv2::DataBuf thumbnail = Exiv2::ExifThumbC(exif).copy();
    items.push_back({"Exif.Thumbnail",
                     std::string(reinterpret_cast<const char *>(thumbnail.pData_),
                                 static_cast<std::size_t>(thumbnail.size_))});
}

/// Everything that an image tells, but what `removed` names.
std::vector<Item> itemsOf(const Exiv2::Image &image, const QSet<QString> &removed, bool readsMakerNote)
{
    std::vector<Item> items;
    addExif(image.exifData(), readsMakerNote, items);
    for (const Exiv2::Iptcdatum &datum : image.iptcData())
        items.push_back({datum.key(), datum.toString()});
    for (const Exiv2::Xmpdatum &datum : image.xmpData())
        items.push_back({datum.key(), datum.toString()});
    std::erase_if(items,
                  [&](const Item &item) { return removed.contains(QString::fromStdString(item.key)); });
    return items;
}

bool stillHas(const Exiv2::Image &image, const QSet<QString> &removed)
{
    const auto isRemoved
        = [&](const auto &datum) { return removed.contains(QString::fromStdString(datum.key())); };
    return std::ranges::any_of(image.exifData(), isRemoved)
        || std::ranges::any_of(image.iptcData(), isRemoved)
        || std::ranges::any_of(image.xmpData(), isRemoved);
}

/// The first that is not as it was: the order of a file may change.
std::optional<QString> lostOf(std::vector<Item> before, std::vector<Item> after)
{
    const auto byKey = [](const Item &a, const Item &b) { return a.key < b.key; };
    std::ranges::stable_sort(before, byKey);
    std::ranges::stable_sort(after, byKey);
    const auto [was, is] = std::ranges::mismatch(before, after);
    if (was != before.end())
        return QString::fromStdString(was->key);
    return is == after.end() ? std::nullopt : std::optional(QString::fromStdString(is->key));
}

std::unique_ptr<Exiv2::Image> read(const QString &path)
{
    auto image = exiv2::openImage(path);
    if (image)
        image->readMetadata();
    return image;
}

Expected<void> checkItems(const QSet<QString> &removed, const QString &original, const QString &copy)
try {
    const exiv2::XmpSession session;
    const auto before = read(original);
    const auto after = read(copy);
    if (!before || !after || before->mimeType() != after->mimeType())
        return wouldLose(checkText(QT_TRANSLATE_NOOP("RemovalCheck", "the format")));
    if (stillHas(*after, removed))
        return failure(checkText(kNotAll));
    const bool readsMakerNote = std::ranges::any_of(after->exifData(), isMakerNoteItem);
    if (const auto lost
        = lostOf(itemsOf(*before, removed, readsMakerNote), itemsOf(*after, removed, readsMakerNote)))
        return wouldLose(*lost);
    return {};
} catch (const std::exception &error) {
    return wouldLose(QString::fromLocal8Bit(error.what()));
}

/// A whole file, mapped. Absent when it can not be.
class Mapping {
public:
    explicit Mapping(const QString &path) : _file(path)
    {
        if (_file.open(QIODevice::ReadOnly))
            _bytes = _file.map(0, _file.size());
    }
    QByteArrayView bytes() const { return {_bytes, _bytes ? _file.size() : 0}; }

private:
    QFile _file;
    const uchar *_bytes = nullptr;
};

/// Segments of different kinds may change places.
std::vector<ImagePart> pictureIn(const std::vector<ImagePart> &parts)
{
    std::vector<ImagePart> picture;
    std::ranges::copy_if(parts, std::back_inserter(picture),
                         [](const ImagePart &part) { return part.kind == ImagePart::Picture; });
    std::ranges::stable_sort(picture, {}, &ImagePart::name);
    return picture;
}

Expected<void> checkParts(const oEXIV2Metadata &options, const QString &original, const QString &copy)
{
    const Mapping before(original);
    const Mapping after(copy);
    const auto were = imagePartsOf(before.bytes());
    if (!were)
        return failure(checkText(QT_TRANSLATE_NOOP(
            "RemovalCheck", "what a rewriting would do to the picture can not be checked in this format")));
    const auto are = imagePartsOf(after.bytes());
    if (!are)
        return wouldLose(checkText(QT_TRANSLATE_NOOP("RemovalCheck", "the picture")));
    const auto goesWhole = [&](const ImagePart &part) {
        return (options.removeIPTC && part.kind == ImagePart::Iptc)
            || (options.removeXMP && part.kind == ImagePart::Xmp);
    };
    if (std::ranges::any_of(*are, goesWhole))
        return failure(checkText(kNotAll));
    const auto was = pictureIn(*were);
    const auto is = pictureIn(*are);
    const auto [lost, added] = std::ranges::mismatch(was, is);
    if (lost == was.end() && added == is.end())
        return {};
    return wouldLose(QString::fromLatin1(lost == was.end() ? added->name : lost->name));
}

} // namespace

Expected<void> checkRemoval(const oEXIV2Metadata &options, const RemovalResult &result,
                            const QString &original, const QString &copy)
{
    // Where nothing would be left the library does not write at all.
    if (QFileInfo(copy).size() == 0)
        return failure(checkText(kNotAll));
    const QSet<QString> removed(result.removed.begin(), result.removed.end());
    return checkItems(removed, original, copy).and_then([&] { return checkParts(options, original, copy); });
}

} // namespace quorvin
