// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ExifTagFaces.h"

#include "readers/image/ExifTables.h"
#include "readers/image/Exiv2Library.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>

namespace quorvin {

namespace {

constexpr std::size_t kMaxFaces = 20'000;
constexpr uint16_t kEndOfList = 0xffff;

/// Directories from which the library takes previews, by how their names begin. MakerNote is where it keeps
/// what offsets count from.
constexpr std::array<std::string_view, 12> kPreviewGroups{
    "Image",   "SubImage", "SubThumb",    "Thumbnail",      "NikonPreview", "Minolta",
    "Olympus", "Pentax",   "SonyMinolta", "SamsungPreview", "PanasonicRaw", "MakerNote",
};
constexpr std::string_view kCasioPreviews = "Casio2";

/// Parts of the names of all tags at which the library finds previews.
constexpr std::array<std::string_view, 5> kPreviewPointers{
    "JPEGInterchangeFormat", "StripOffsets", "TileOffsets", "Preview", "Thumbnail",
};

/// And of those that point to pixels. In an image directory they are those of a preview only where it says
/// so.
constexpr std::array<std::string_view, 2> kPixelPointers{"StripOffsets", "TileOffsets"};
constexpr std::string_view kSubfileType = "NewSubfileType";
constexpr std::array<std::string_view, 3> kImageGroups{"Image", "SubImage", "SubThumb"};

const Exiv2::TagInfo *infoOf(const Exiv2::TagInfo *list, uint16_t tag)
{
    while (list->tag_ != tag && list->tag_ != kEndOfList)
        ++list;
    return list;
}

/// Tags that the library does not know end each of its lists, and are printed by its default printer.
bool printsByDefault(const Exiv2::Exifdatum &datum)
{
    static const Exiv2::PrintFct byDefault = infoOf(Exiv2::ExifTags::tagList("Image"), kEndOfList)->printFct_;
    const Exiv2::TagInfo *list = Exiv2::ExifTags::tagList(datum.groupName());
    if (!list)
        return false;
    const Exiv2::TagInfo *info = infoOf(list, datum.tag());
    return info->printFct_ == byDefault && info->typeId_ != Exiv2::comment;
}

template <std::size_t count>
bool beginsWithOneOf(const std::array<std::string_view, count> &beginnings, const std::string &text)
{
    return std::ranges::any_of(beginnings, [&](std::string_view part) { return text.starts_with(part); });
}

template <std::size_t count>
bool containsOneOf(const std::array<std::string_view, count> &parts, const std::string &text)
{
    return std::ranges::any_of(parts,
                               [&](std::string_view part) { return text.find(part) != std::string::npos; });
}

bool hasPreviews(const std::string &group)
{
    return group == kCasioPreviews || beginsWithOneOf(kPreviewGroups, group);
}

bool pointsToPreview(const std::string &group, const std::string &name)
{
    const bool isOfMainPixels = beginsWithOneOf(kImageGroups, group) && containsOneOf(kPixelPointers, name);
    return containsOneOf(kPreviewPointers, name) && !isOfMainPixels;
}

TermPtr termOf(const Exiv2::Exifdatum &datum, const std::string &name, const std::string &ifdName)
{
    const std::string key = datum.key();
    std::string label = datum.tagLabel();
    if (label.empty() || !exiv2::isValidText(label))
        label = name;
    const bool kept
        = !ifdName.empty() && !label.empty() && exiv2::isValidText(key) && !skipExifTag(name, ifdName, key);
    return kept ? internTerm(QString::fromStdString(key), QString::fromStdString(label)) : nullptr;
}

ExifTagFace makeFace(const Exiv2::Exifdatum &datum)
{
    const std::string name = datum.tagName();
    ExifTagFace face;
    face.ifdName = datum.ifdName();
    face.term = termOf(datum, name, face.ifdName);
    face.printsAsItIs = printsByDefault(datum);
    face.namesLens = name.find("Lens") != std::string::npos;
    face.servesPreviews = hasPreviews(datum.groupName());
    face.pointsToPreview = face.servesPreviews && pointsToPreview(datum.groupName(), name);
    face.tellsReduced = face.servesPreviews && name == kSubfileType;
    return face;
}

} // namespace

const ExifTagFace &faceOf(const Exiv2::Exifdatum &datum)
{
    thread_local std::unordered_map<quint32, ExifTagFace> faces;
    if (faces.size() >= kMaxFaces)
        faces.clear();
    const auto number = static_cast<quint32>(datum.ifdId()) << 16 | datum.tag();
    auto known = faces.find(number);
    if (known == faces.end())
        known = faces.emplace(number, makeFace(datum)).first;
    return known->second;
}

} // namespace quorvin
