// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/IptcXmpExtraction.h"

#include "model/Log.h"
#include "readers/image/Exiv2Library.h"
#include "readers/image/XmpPrefixes.h"

namespace quorvin {

namespace {

TermPtr termOf(const std::string &key, const std::string &label)
{
    const auto keyText = exiv2::text(key);
    const auto labelText = exiv2::text(label);
    return keyText && labelText && !labelText->isEmpty() ? internTerm(*keyText, *labelText) : nullptr;
}

/// The library refuses to name a member of a namespace that it does not know.
std::string labelOf(const Exiv2::Xmpdatum &datum, const XmpPrefixes &prefixes)
{
    const std::string path = datum.tagName();
    switch (prefixes.innermost(path)) {
    case XmpPrefixes::Innermost::Unknown:
        throw Exiv2::Error(Exiv2::kerNoNamespaceInfoForXmpPrefix, path);
    case XmpPrefixes::Innermost::OfTheFile:
        return prefixes.ownPath(path);
    case XmpPrefixes::Innermost::OfTheLibrary:
        break;
    }
    return prefixes.ownPath(datum.tagLabel());
}

void addProperty(const Exiv2::Xmpdatum &datum, const XmpPrefixes &prefixes, TagList &tags)
{
    const std::string group = prefixes.own(datum.groupName());
    const std::string key = "Xmp." + group + '.' + prefixes.ownPath(datum.tagName());
    try {
        std::string value = datum.print();
        if (const TermPtr term = termOf(key, labelOf(datum, prefixes)))
            tags.append({term, exiv2::isValidText(value) ? std::move(value) : std::string(), group});
    } catch (const Exiv2::Error &error) {
        qCInfo(lcQuorvin).noquote() << "xmp failed" << QString::fromStdString(key) + u':' << error.what();
    }
}

} // namespace

void prepareIptc(const Exiv2::Image &image, ImageMetadata &result)
{
    try {
        for (const Exiv2::Iptcdatum &datum : image.iptcData()) {
            std::string value = datum.print();
            if (value.empty() || !exiv2::isValidText(value))
                continue;
            if (const TermPtr term = termOf(datum.key(), datum.tagLabel()))
                result.iptc.join({term, std::move(value), {}});
        }
    } catch (const Exiv2::Error &error) {
        qCInfo(lcQuorvin).noquote() << "exiv2 exception in Iptc:" << error.what();
    }
}

void prepareXmp(const Exiv2::Image &image, ImageMetadata &result)
{
    if (image.xmpData().empty())
        return;
    result.xmp = {};
    try {
        const XmpPrefixes prefixes(image);
        for (const Exiv2::Xmpdatum &datum : image.xmpData())
            addProperty(datum, prefixes, result.xmp);
    } catch (const Exiv2::Error &error) {
        qCInfo(lcQuorvin).noquote() << "exiv2 exception in XMP:" << error.what();
    } catch (const std::exception &error) {
        qCInfo(lcQuorvin).noquote() << "exiv2 std exception in XMP:" << error.what();
    } catch (...) {
        qCInfo(lcQuorvin, "Unknown exiv2 exception in XMP");
    }
}

} // namespace quorvin
