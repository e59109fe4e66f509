// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/ImageTraces.h"

#include "filefacts/ExtendedAttributes.h"
#include "platform/LinkTarget.h"
#include "platform/NativePath.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <array>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array kOrigins{QLatin1String("com.apple.metadata:kMDItemWhereFroms"),
                              QLatin1String("com.apple.metadata:kMDItemDownloadedDate"),
                              QLatin1String("xdg.origin.url"), QLatin1String("xdg.referrer.url")};

/// Programs escape differently, and the desktop finds a thumbnail by what its program wrote.
constexpr std::array kPlainInAddresses{"/", "/!$&'()*+,:=@", "/!$&'()*+,;:=@", "/!$&'()*+,;:=@[]"};

QStringList namesOfThumbnails(const QByteArray &path)
{
    QStringList names;
    for (const char *plain : kPlainInAddresses) {
        const QByteArray address = "file://" + path.toPercentEncoding(plain);
        const QByteArray digest = QCryptographicHash::hash(address, QCryptographicHash::Md5).toHex();
        names.append(QString::fromLatin1(digest) + u".png"_s);
    }
    names.removeDuplicates();
    return names;
}

/// Where the desktop keeps them: a folder a size, and one a program that failed to make some.
QStringList foldersOfThumbnails()
{
    const QDir root(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
                    + u"/thumbnails"_s);
    QStringList folders;
    for (const QString &name : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        folders.append(root.filePath(name));
        if (name != u"fail"_s)
            continue;
        const QDir failed(root.filePath(name));
        for (const QString &program : failed.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            folders.append(failed.filePath(program));
    }
    return folders;
}

QStringList thumbnailsOf(const QString &path)
{
    const QByteArray given = encodePath(path);
    const QByteArray real = LinkTarget::of(given).path;
    QStringList names = namesOfThumbnails(given);
    if (real != given)
        names += namesOfThumbnails(real);
    QStringList found;
    for (const QString &folder : foldersOfThumbnails()) {
        for (const QString &name : names) {
            const QString thumbnail = folder + u'/' + name;
            if (QFile::exists(thumbnail))
                found.append(thumbnail);
        }
    }
    return found;
}

} // namespace

ImageTraces tracesOf(const QString &path)
{
    ImageTraces traces{.thumbnails = thumbnailsOf(path)};
    for (const QLatin1String origin : kOrigins) {
        if (Utilities::extendedAttributeData(origin, path))
            traces.attributes.append(origin);
    }
    return traces;
}

Expected<void> clearTraces(const QString &path)
{
    const ImageTraces traces = tracesOf(path);
    Expected<void> cleared;
    for (const QString &attribute : traces.attributes) {
        if (const auto removed = Utilities::removeExtendedAtrribute(attribute, path); !removed && cleared)
            cleared = removed;
    }
    for (const QString &thumbnail : traces.thumbnails) {
        QFile file(thumbnail);
        if (!file.remove() && cleared)
            cleared = failure(file.errorString());
    }
    return cleared;
}

} // namespace quorvin
