// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ImageExtended.h"

#include "readers/image/ExifTables.h"
#include "readers/image/ImageMetadata.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;
using Text = std::optional<QString>;

/// What the rows about the picture are made of.
struct Sources {
    const ImageMetadata &metadata;
    const GeneralFacts &general;

    /// The Exif tag of the primary image.
    Text primary(QLatin1String tag) const
    {
        return metadata.exif.value("Exif."_L1 + metadata.tiffPrimaryGroup + u'.' + tag);
    }
    /// In a CR2 these tags tell of a preview.
    bool tellsSampling() const { return general.format != "CR2"_L1; }
};

struct ImageRow {
    QLatin1String key;
    QLatin1String label;
    Text (*value)(const Sources &from);
};

Text resolution(const Sources &from)
{
    Text unit = from.primary("ResolutionUnit"_L1);
    const Text x = from.primary("XResolution"_L1);
    const Text y = from.primary("YResolution"_L1);
    if (!from.tellsSampling() || !unit || !x || !y)
        return std::nullopt;
    if (*unit == "inch"_L1)
        unit = u"dpi"_s;
    else if (*unit == "cm"_L1)
        unit = u"dpcm"_s;
    return *x + " x "_L1 + *y + u' ' + *unit;
}

Text colorFormat(const Sources &from)
{
    const Text bits = from.tellsSampling() ? from.primary("BitsPerSample"_L1) : std::nullopt;
    return bits ? std::optional(bits->simplified().section(u' ', 0, 0) + " bit"_L1) : std::nullopt;
}

Text orientation(const Sources &from)
{
    const Text value = from.metadata.exif.value(u"Exif.Image.Orientation"_s);
    const Text &degrees = from.metadata.imageOrientationDegrees;
    return value && degrees ? *value + " ("_L1 + *degrees + u')' : value;
}

const std::array kImageRows{
    ImageRow{"Format"_L1, "Format"_L1, [](const Sources &from) { return Text(from.general.format); }},
    ImageRow{"ImageSize"_L1, "Image size"_L1, [](const Sources &from) { return from.general.imageSize; }},
    ImageRow{"ImageCount"_L1, "Number of images"_L1,
             [](const Sources &from) {
                 const Text &count = from.metadata.imageCount;
                 return count == u"1"_s ? Text() : count;
             }},
    ImageRow{"ImageResolution"_L1, "Image resolution"_L1, resolution},
    ImageRow{
        "Compression"_L1, "Compression"_L1,
        [](const Sources &from) { return from.tellsSampling() ? from.primary("Compression"_L1) : Text(); }},
    ImageRow{"ColorFormat"_L1, "Color Format"_L1, colorFormat},
    ImageRow{"ImageOrientation"_L1, "Orientation"_L1, orientation},
    ImageRow{"ThumbCount"_L1, "Number of previews"_L1,
             [](const Sources &from) { return Text(from.metadata.thumbCount); }},
};

const std::array kProfileRows{
    ImageRow{"ICCProfileColorSpace"_L1, "ICC Profile"_L1,
             [](const Sources &from) { return from.metadata.iccProfileColorSpace; }},
    ImageRow{"ICCProfileColorSpaceModel"_L1, "ICC Profile Color Space"_L1,
             [](const Sources &from) { return from.metadata.iccProfileColorSpaceModel; }},
};

/// Tags of directory 0 that the rows above or the structure of the file already tell of.
constexpr std::array kToldTags{
    "Exif.Image.ImageWidth"_L1,          "Exif.Image.ImageLength"_L1,
    "Exif.Image.BitsPerSample"_L1,       "Exif.Image.Compression"_L1,
    "Exif.Image.Orientation"_L1,         "Exif.Image.XResolution"_L1,
    "Exif.Image.YResolution"_L1,         "Exif.Image.ResolutionUnit"_L1,
    "Exif.Image.SamplesPerPixel"_L1,     "Exif.Image.PhotometricInterpretation"_L1,
    "Exif.Image.NewSubfileType"_L1,      "Exif.Image.RowsPerStrip"_L1,
    "Exif.Image.PlanarConfiguration"_L1, "Exif.Image.YCbCrPositioning"_L1,
    "Exif.Image.ExtraSamples"_L1,        "Exif.Image.SampleFormat"_L1,
    "Exif.Image.TileWidth"_L1,           "Exif.Image.TileLength"_L1,
    "Exif.Image.YCbCrSubSampling"_L1,
};

constexpr std::string_view kMakernote = "Makernote";

struct ExifGroup {
    std::string_view ifdName;
    QLatin1String name;
};

/// The directories that are groups, and what they are called.
constexpr std::array kExifGroups{
    ExifGroup{"Exif", "EXIF"_L1},
    ExifGroup{"GPSInfo", "GPS"_L1},
    ExifGroup{kMakernote, "MakerNote"_L1},
};

/// The XMP namespaces that form the group "XMP", in its order.
constexpr std::array<std::string_view, 6> kMainNamespaces{"xmp", "photoshop", "dc", "tiff", "exif", "aux"};

struct NamedNamespace {
    std::string_view prefix;
    QLatin1String name;
};

constexpr std::array kNamedNamespaces{
    NamedNamespace{"crs", "Camera Raw Settings (XMP)"_L1},
    NamedNamespace{"GPano", "Photo Sphere Metadata (XMP)"_L1},
};

/// Tags in the order of their list, each list under the name of its source.
using TagsByGroup = std::vector<std::pair<std::string, std::vector<const ImageTag *>>>;

TagsByGroup sorted(const TagList &tags)
{
    TagsByGroup lists;
    for (std::size_t i = 0; i < tags.count(); ++i) {
        const ImageTag &tag = tags[i];
        auto list = std::ranges::find(lists, tag.group, &TagsByGroup::value_type::first);
        if (list == lists.end())
            list = lists.insert(lists.end(), {tag.group, {}});
        list->second.push_back(&tag);
    }
    return lists;
}

void addTag(const ImageTag &tag, ParameterGroups &groups, quint16 subgroup = 0)
{
    groups.addUtf8(tag.term, tag.value, {}, subgroup);
}

void begin(const QString &name, ParameterGroups &groups)
{
    groups.beginGroup(name);
    groups.beginStream(0);
}

void addImageGroup(const Sources &from, const TagsByGroup &exif, ParameterGroups &groups)
{
    begin(u"Image"_s, groups);
    const auto addRow = [&](const ImageRow &row) {
        if (const Text value = row.value(from))
            groups.add(internTerm(row.key, row.label), *value);
    };
    std::ranges::for_each(kImageRows, addRow);
    for (qsizetype i = 0; i < from.metadata.previews.size(); ++i) {
        const QString number = QString::number(i + 1);
        groups.add(internTerm("Preview"_L1 + number, "Preview #"_L1 + number), from.metadata.previews[i]);
    }
    std::ranges::for_each(kProfileRows, addRow);
    for (const auto &[ifdName, tags] : exif) {
        if (ifdName != "IFD0")
            continue;
        for (const ImageTag *tag : tags) {
            if (std::ranges::find(kToldTags, tag->term->key) == kToldTags.end())
                addTag(*tag, groups);
        }
    }
}

/// The second part of a key, which names the group of a maker note; "" without one.
QString subgroupOf(const ImageTag &tag)
{
    return tag.term->key.section(u'.', 1, 1);
}

void addMakernote(const std::vector<const ImageTag *> &tags, ParameterGroups &groups)
{
    QHash<QString, quint16> subgroups;
    for (const ImageTag *tag : tags) {
        const QString group = subgroupOf(*tag);
        auto known = subgroups.find(group);
        if (known == subgroups.end()) {
            const bool open = group == "MakerNote"_L1;
            known = subgroups.insert(group, groups.addSubgroup(open ? QString() : makernoteGroupName(group)));
        }
        addTag(*tag, groups, *known);
    }
}

void addExifGroups(const TagsByGroup &exif, ParameterGroups &groups)
{
    for (const auto &[ifdName, tags] : exif) {
        const auto *group = std::ranges::find(kExifGroups, ifdName, &ExifGroup::ifdName);
        if (group == kExifGroups.end())
            continue;
        begin(group->name, groups);
        if (ifdName == kMakernote)
            addMakernote(tags, groups);
        else
            std::ranges::for_each(tags, [&](const ImageTag *tag) { addTag(*tag, groups); });
    }
}

void addIptc(const TagList &iptc, ParameterGroups &groups)
{
    if (iptc.isEmpty())
        return;
    begin(u"IPTC"_s, groups);
    for (std::size_t i = 0; i < iptc.count(); ++i)
        addTag(iptc[i], groups);
}

/// Markers of a structure and of another program's bookkeeping.
bool isNoise(const ImageTag &tag)
{
    const QString &label = tag.term->label;
    return (label == "Flash"_L1 && tag.value == "type=\"Struct\"")
        || (label == "NativeDigest"_L1 && (tag.group == "tiff" || tag.group == "exif"));
}

/// The path of a member of the flash structure reads as two words.
TermPtr readableTerm(const TermPtr &term)
{
    const QStringList parts = term->label.split(u'/');
    if (parts.size() != 2 || parts.front() != "Flash"_L1)
        return term;
    return internTerm(term->key, QString(term->label).replace("/exif:"_L1, " "_L1));
}

void addMainXmp(const TagsByGroup &xmp, ParameterGroups &groups)
{
    std::vector<const ImageTag *> tags;
    for (const std::string_view prefix : kMainNamespaces) {
        const auto list = std::ranges::find(xmp, prefix, &TagsByGroup::value_type::first);
        if (list != xmp.end())
            std::ranges::remove_copy_if(list->second, std::back_inserter(tags),
                                        [](const ImageTag *tag) { return isNoise(*tag); });
    }
    if (tags.empty())
        return;
    begin(u"XMP"_s, groups);
    for (const ImageTag *tag : tags)
        groups.addUtf8(readableTerm(tag->term), tag->value);
}

void addFurtherXmp(const TagsByGroup &xmp, ParameterGroups &groups)
{
    for (const auto &[prefix, tags] : xmp) {
        if (std::ranges::find(kMainNamespaces, prefix) != kMainNamespaces.end())
            continue;
        const auto *named = std::ranges::find(kNamedNamespaces, prefix, &NamedNamespace::prefix);
        begin(named == kNamedNamespaces.end() ? "XMP/"_L1 + QString::fromStdString(prefix)
                                              : QString(named->name),
              groups);
        for (const ImageTag *tag : tags)
            addTag(*tag, groups);
    }
}

} // namespace

void prepareExiv2Data(const ImageMetadata &metadata, const GeneralFacts &general, ParameterGroups &groups)
{
    const TagsByGroup exif = sorted(metadata.exif);
    const TagsByGroup xmp = sorted(metadata.xmp);
    addImageGroup({metadata, general}, exif, groups);
    addExifGroups(exif, groups);
    addIptc(metadata.iptc, groups);
    addMainXmp(xmp, groups);
    addFurtherXmp(xmp, groups);
}

} // namespace quorvin
