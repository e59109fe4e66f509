// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/Exiv2Library.h"

#include "model/Log.h"
#include "platform/NativePath.h"
#include "readers/image/DescriptorIo.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>
#include <vector>

namespace quorvin::exiv2 {

namespace {

constexpr char kFaceNamespace[] = "http://ns.apple.com/faceinfo/1.0/";

/// Image types of the library that are videos: RIFF, Matroska, QuickTime, ASF. Its headers that name them do
/// not compile on their own.
constexpr std::array kVideoTypes{20, 21, 22, 24};

/// Read by `setUp`, and by everybody later.
const Exiv2::Dictionary &builtInPrefixes()
{
    static const Exiv2::Dictionary prefixes = [] {
        Exiv2::Dictionary known;
        Exiv2::XmpProperties::registeredNamespaces(known);
        return known;
    }();
    return prefixes;
}

std::mutex xmpLock;

void forgetForeignNamespaces()
{
    std::vector<std::string> foreign;
    for (const auto &[uri, info] : Exiv2::XmpProperties::nsRegistry_) {
        if (uri != kFaceNamespace)
            foreign.push_back(uri);
    }
    for (const std::string &uri : foreign)
        Exiv2::XmpProperties::unregisterNs(uri);
}

void logMessage(int, const char *message)
{
    qCDebug(lcLibraries).noquote() << "exiv2:" << QString::fromUtf8(message).trimmed();
}

bool isImageType(int type)
{
    return type != Exiv2::ImageType::none && std::ranges::find(kVideoTypes, type) == kVideoTypes.end();
}

} // namespace

XmpSession::XmpSession() : _lock(xmpLock) { }

XmpSession::~XmpSession()
{
    forgetForeignNamespaces();
}

bool isBuiltInPrefix(const std::string &prefix)
{
    // Its own table knows some that its toolkit does not; those that files bring have no properties.
    try {
        return builtInPrefixes().contains(prefix) || Exiv2::XmpProperties::propertyList(prefix);
    } catch (const Exiv2::Error &) {
        return false;
    }
}

void setUp()
{
    Exiv2::LogMsg::setHandler(logMessage);
    Exiv2::XmpParser::initialize();
    Exiv2::XmpProperties::registerNs(kFaceNamespace, "apple-fi");
    Exiv2::enableBMFF(true);
    builtInPrefixes();
}

std::unique_ptr<Exiv2::Image> openImage(Exiv2::BasicIo::AutoPtr io)
{
    if (io->open() != 0 || !isImageType(Exiv2::ImageFactory::getType(*io)))
        return nullptr;
    io->close();
    return std::unique_ptr<Exiv2::Image>(Exiv2::ImageFactory::open(io).release());
}

std::unique_ptr<Exiv2::Image> openImage(const QString &path)
{
    return openImage(Exiv2::BasicIo::AutoPtr(new Exiv2::FileIo(encodePath(path).toStdString())));
}

std::unique_ptr<Exiv2::Image> openImage(const RegularFile &file)
{
    const std::string path = encodePath(file.resolvedPath()).toStdString();
    return openImage(Exiv2::BasicIo::AutoPtr(new DescriptorIo(file.descriptor(), file.size(), path)));
}

std::unique_ptr<Exiv2::Image> openImage(QByteArrayView bytes)
{
    const auto *begin = reinterpret_cast<const Exiv2::byte *>(bytes.data());
    const auto size = static_cast<long>(bytes.size());
    if (!isImageType(Exiv2::ImageFactory::getType(begin, size)))
        return nullptr;
    return std::unique_ptr<Exiv2::Image>(Exiv2::ImageFactory::open(begin, size).release());
}

TagNumber::TagNumber(const std::string &key)
{
    const Exiv2::ExifKey parsed(key);
    _ifdId = parsed.ifdId();
    _tag = parsed.tag();
}

const Exiv2::Exifdatum *TagNumber::in(const Exiv2::ExifData &exif) const
{
    const auto found = std::find_if(exif.begin(), exif.end(), [this](const Exiv2::Exifdatum &datum) {
        return datum.tag() == _tag && datum.ifdId() == _ifdId;
    });
    return found == exif.end() ? nullptr : &*found;
}

long toLong(const Exiv2::Exifdatum &datum, long n)
{
    return datum.toLong(n);
}

double toFloat(const Exiv2::Exifdatum &datum, long n)
{
    return datum.toFloat(n);
}

bool isValidText(const std::string &utf8)
{
    return QByteArrayView(utf8).isValidUtf8();
}

std::optional<QString> text(const std::string &utf8)
{
    return isValidText(utf8) ? std::optional(QString::fromStdString(utf8)) : std::nullopt;
}

} // namespace quorvin::exiv2
