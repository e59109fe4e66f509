// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/MetadataRemoval.h"

#include "platform/NativePath.h"
#include "readers/image/ExifTables.h"
#include "readers/image/Exiv2Library.h"
#include "surgery/RemovalCheck.h"
#include "surgery/RewritingIo.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr char kMakerNote[] = "Exif.Photo.MakerNote";
constexpr char kInteroperability[] = "Exif.Photo.InteroperabilityTag";
constexpr char kPositionVersion[] = "Exif.GPSInfo.GPSVersionID";
constexpr char kPrivateData[] = "Exif.Image.DNGPrivateData";

/// Of the first directory what tells of picture and camera, and not of the structure of the file.
constexpr std::array kDescriptive{"Exif.Image.DateTime",  "Exif.Image.ImageDescription", "Exif.Image.Make",
                                  "Exif.Image.Model",     "Exif.Image.Software",         "Exif.Image.Artist",
                                  "Exif.Image.Copyright", "Exif.Image.DateTimeOriginal"};
/// Without them nobody knows how to read the pixels of this one.
constexpr char kNikonRaw[] = "image/x-nikon-nef";
constexpr std::array kCamera{"Exif.Image.Make", "Exif.Image.Model"};

QString removalText(const char *words)
{
    return QCoreApplication::translate("MetadataRemoval", words);
}

/// The items of an image that go.
struct Plan {
    std::vector<std::string> exif; ///< keys, one for each item
    std::vector<std::string> xmp;
    bool clearsIptc = false;
    bool clearsXmp = false;
    RemovalResult result;
};

class Planner {
public:
    Planner(const oEXIV2Metadata &options, const Exiv2::Image &image)
        : _options(options), _image(image), _mimeType(image.mimeType())
    {
    }

    Plan plan()
    {
        if (_options.removeExif)
            planExif();
        if (_options.removeGPS)
            planPosition();
        if (_options.removeMakernote)
            planMakerNote();
        planWhole();
        tell();
        return std::move(_plan);
    }

private:
    const Exiv2::ExifData &exif() const { return _image.exifData(); }
    bool has(const char *key) const { return exif().findKey(Exiv2::ExifKey(key)) != exif().end(); }

    void add(const char *key)
    {
        if (has(key))
            _plan.exif.emplace_back(key);
    }

    void keep(const char *key, const char *reason)
    {
        if (has(key))
            _plan.result.kept.push_back({QString::fromLatin1(key), removalText(reason)});
    }

    void addDirectory(const char *name, const char *but)
    {
        for (const Exiv2::Exifdatum &datum : exif()) {
            // What leads to a directory that stays is written again.
            const std::string key = datum.key();
            if (std::string_view(datum.ifdName()) == name && key != but && key != kInteroperability)
                _plan.exif.push_back(key);
        }
    }

    void planExif()
    {
        for (const char *key : kDescriptive) {
            const bool isNeeded = _mimeType == kNikonRaw
                && std::ranges::find(kCamera, std::string_view(key),
                                     [](const char *each) { return std::string_view(each); })
                    != kCamera.end();
            if (isNeeded)
                keep(key, QT_TRANSLATE_NOOP("MetadataRemoval", "the raw picture is read by it"));
            else
                add(key);
        }
        addDirectory("Exif", kMakerNote);
        keep("Exif.Image.Orientation", QT_TRANSLATE_NOOP("MetadataRemoval", "the picture would turn"));
    }

    void planPosition()
    {
        addDirectory("GPSInfo", kPositionVersion);
        keep(kPositionVersion, QT_TRANSLATE_NOOP("MetadataRemoval", "it tells no position"));
        if (_options.removeXMP)
            return;
        for (const Exiv2::Xmpdatum &datum : _image.xmpData()) {
            if (datum.key().starts_with("Xmp.exif.GPS"))
                _plan.xmp.push_back(datum.key());
        }
    }

    void planMakerNote()
    {
        if (rawInfo(QString::fromStdString(_mimeType), has("Exif.Image.DNGVersion")).isRaw) {
            keep(kMakerNote, QT_TRANSLATE_NOOP("MetadataRemoval", "the raw picture is read by it"));
            return;
        }
        add(kMakerNote);
        add(kPrivateData);
        addDirectory("Makernote", "");
    }

    void planWhole()
    {
        _plan.clearsIptc = _options.removeIPTC && !_image.iptcData().empty();
        _plan.clearsXmp = _options.removeXMP && _image.xmpData().count() > 0;
    }

    void tell()
    {
        std::set<std::string> told;
        const auto tellOnce = [&](const std::string &key) {
            if (told.insert(key).second)
                _plan.result.removed.push_back(QString::fromStdString(key));
        };
        std::ranges::for_each(_plan.exif, tellOnce);
        std::ranges::for_each(_plan.xmp, tellOnce);
        if (_plan.clearsIptc)
            std::ranges::for_each(_image.iptcData(), tellOnce, &Exiv2::Iptcdatum::key);
        if (_plan.clearsXmp)
            std::ranges::for_each(_image.xmpData(), tellOnce, &Exiv2::Xmpdatum::key);
    }

    const oEXIV2Metadata &_options;
    const Exiv2::Image &_image;
    std::string _mimeType;
    Plan _plan;
};

template <typename Key, typename Data>
void erase(const std::vector<std::string> &keys, Data &data)
{
    for (const std::string &key : keys) {
        const auto found = data.findKey(Key(key));
        if (found != data.end())
            data.erase(found);
    }
}

bool canWrite(const Exiv2::Image &image, Exiv2::MetadataId kind)
{
    return (image.checkMode(kind) & Exiv2::amWrite) != 0;
}

bool isOfMakerNote(const Exiv2::Exifdatum &datum)
{
    return std::string_view(datum.ifdName()) == "Makernote";
}

/// The library writes a maker note as the camera's make tells it to.
bool wouldSpoilMakerNote(const Plan &plan, const Exiv2::Image &image)
{
    const auto goes = [&](const char *key) { return std::ranges::find(plan.exif, key) != plan.exif.end(); };
    return goes("Exif.Image.Make") && !goes(kMakerNote)
        && std::ranges::any_of(image.exifData(), isOfMakerNote);
}

/// Absent when the library can write what the plan wants.
std::optional<QString> refusal(const Plan &plan, const Exiv2::Image &image)
{
    const bool isWritable = (plan.exif.empty() || canWrite(image, Exiv2::mdExif))
        && (!plan.clearsIptc || canWrite(image, Exiv2::mdIptc))
        && ((plan.xmp.empty() && !plan.clearsXmp) || canWrite(image, Exiv2::mdXmp));
    if (!isWritable)
        return removalText(QT_TRANSLATE_NOOP("MetadataRemoval", "files of this format can not be rewritten"));
    if (wouldSpoilMakerNote(plan, image))
        return removalText(
            QT_TRANSLATE_NOOP("MetadataRemoval", "the maker note would be lost with the make of the camera"));
    return std::nullopt;
}

void apply(const Plan &plan, Exiv2::Image &image)
{
    erase<Exiv2::ExifKey>(plan.exif, image.exifData());
    erase<Exiv2::XmpKey>(plan.xmp, image.xmpData());
    if (plan.clearsIptc)
        image.clearIptcData();
    if (plan.clearsXmp) {
        image.clearXmpData();
        image.clearXmpPacket();
        // Else the old packet would come back in a TIFF.
        image.writeXmpFromPacket(false);
    }
    image.writeMetadata();
}

tl::unexpected<Error> noImage()
{
    return failure(
        removalText(QT_TRANSLATE_NOOP("MetadataRemoval", "this is no image whose metadata can be read")));
}

/// What the library says of the file, without its path, which it puts before some of its texts: whoever
/// shows an error names the file beside it.
QString textWithoutPath(const std::exception &error, const QString &path)
{
    QByteArray text(error.what());
    if (const QByteArray start = encodePath(path) + ": "; text.startsWith(start))
        text.remove(0, start.size());
    return QString::fromLocal8Bit(text);
}

/// Opens an image by what `source` gives to `openImage`, reads it, and hands it to `use` with what would be
/// taken from it, unless that is refused. `path` is the one by which the library knows it. What the library
/// throws becomes an error.
template <typename Source, typename Use>
Expected<RemovalResult> withPlan(const oEXIV2Metadata &options, const QString &path, const Source &source,
                                 const Use &use)
try {
    const exiv2::XmpSession session;
    const auto image = exiv2::openImage(source());
    if (!image)
        return noImage();
    image->readMetadata();
    Plan plan = Planner(options, *image).plan();
    if (!plan.result.removed.empty()) {
        if (const auto reason = refusal(plan, *image))
            return failure(*reason);
        use(plan, *image);
    }
    return std::move(plan.result);
} catch (const std::exception &error) {
    return failure(textWithoutPath(error, path));
}

} // namespace

Expected<RemovalResult> plannedRemoval(const oEXIV2Metadata &options, const QString &path)
{
    return withPlan(
        options, path, [&] { return path; }, [](const Plan &, Exiv2::Image &) {});
}

Expected<RemovalResult> removeMetadata(const oEXIV2Metadata &options, const QString &original,
                                       const QString &copy)
{
    const auto file = RegularFile::open(original);
    if (!file)
        return tl::unexpected(file.error());
    QFile written(copy);
    if (!written.open(QIODevice::ReadWrite | QIODevice::Unbuffered | QIODevice::ExistingOnly))
        return failure(written.errorString());
    auto result = withPlan(
        options, file->resolvedPath(),
        [&] { return Exiv2::BasicIo::AutoPtr(new RewritingIo(*file, written.handle())); }, apply);
    if (!result || result->removed.empty())
        return result;
    return checkRemoval(options, *result, original, copy).map([&] { return *std::move(result); });
}

} // namespace quorvin
