// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/XmpPrefixes.h"

#include "readers/image/Exiv2Library.h"

#include <QXmlStreamReader>

namespace quorvin {

namespace {

/// The library adds a slash to a namespace that ends in neither that nor a number sign.
std::string bare(std::string uri)
{
    if (uri.ends_with('/'))
        uri.pop_back();
    return uri;
}

/// The prefix of a member such as Container:Item; "" without one.
std::string prefixOf(const std::string &member)
{
    const std::size_t colon = member.find(':');
    return colon == std::string::npos ? std::string() : member.substr(0, colon);
}

} // namespace

XmpPrefixes::XmpPrefixes(const Exiv2::Image &image)
{
    std::set<std::string> foreign;
    for (const Exiv2::Xmpdatum &datum : image.xmpData()) {
        if (std::string group = datum.groupName(); !exiv2::isBuiltInPrefix(group))
            foreign.insert(std::move(group));
    }
    if (!foreign.empty())
        readDeclarations(image.xmpPacket());
    for (const std::string &prefix : foreign)
        _outermost.insert(own(prefix));
}

std::string XmpPrefixes::own(const std::string &prefix) const
{
    if (_prefixes.empty() || prefix.empty() || exiv2::isBuiltInPrefix(prefix))
        return prefix;
    try {
        const auto known = _prefixes.find(bare(Exiv2::XmpProperties::ns(prefix)));
        return known == _prefixes.end() ? prefix : known->second;
    } catch (const Exiv2::Error &) {
        return prefix;
    }
}

std::string XmpPrefixes::ownPath(const std::string &path) const
{
    const std::size_t slash = path.find('/');
    if (slash == std::string::npos)
        return path;
    const std::string rest = path.substr(slash + 1);
    const std::string prefix = prefixOf(rest.substr(0, rest.find('/')));
    return path.substr(0, slash + 1) + own(prefix) + ownPath(rest.substr(prefix.size()));
}

XmpPrefixes::Innermost XmpPrefixes::innermost(const std::string &path) const
{
    const std::size_t slash = path.rfind('/');
    const std::string prefix = slash == std::string::npos ? std::string() : prefixOf(path.substr(slash + 1));
    if (prefix.empty() || exiv2::isBuiltInPrefix(prefix))
        return Innermost::OfTheLibrary;
    return _outermost.contains(own(prefix)) ? Innermost::OfTheFile : Innermost::Unknown;
}

void XmpPrefixes::readDeclarations(const std::string &packet)
{
    QXmlStreamReader reader(QByteArray::fromRawData(packet.data(), static_cast<qsizetype>(packet.size())));
    while (!reader.atEnd()) {
        reader.readNext();
        for (const QXmlStreamNamespaceDeclaration &declared : reader.namespaceDeclarations())
            _prefixes.try_emplace(bare(declared.namespaceUri().toUtf8().toStdString()),
                                  declared.prefix().toUtf8().toStdString());
    }
}

} // namespace quorvin
