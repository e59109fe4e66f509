// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/ExtendedAttributes.h"

#include "model/FailureKind.h"
#include "model/Log.h"
#include "platform/NativePath.h"
#include "platform/PropertyList.h"

#include <QDateTime>
#include <QRegularExpression>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <utility>

namespace quorvin::Utilities {

namespace {

constexpr QLatin1String kNameSpace("user.");

constexpr std::array kDesktopNames{
    std::pair{kTagsAttribute, kDesktopTagsAttribute},
    std::pair{kCommentAttribute, QLatin1String("xdg.comment")},
    std::pair{kWhereFromsAttribute, QLatin1String("xdg.origin.url")},
    std::pair{kAuthorsAttribute, QLatin1String("dublincore.creator")},
};

QByteArray nameOnDisk(const QString &name)
{
    return QString(kNameSpace + name).toUtf8();
}

constexpr qsizetype kFirstTry = 256; ///< most attributes, and lists of them, are shorter

/// Asks for the bytes; for the size only when they are more than most, and again when the value grew in
/// between.
template <typename Read>
Expected<QByteArray> readSized(Read read)
{
    QByteArray bytes(kFirstTry, Qt::Uninitialized);
    for (;;) {
        const ssize_t length = read(bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (length >= 0) {
            bytes.truncate(length);
            return bytes;
        }
        const ssize_t size = errno == ERANGE ? read(nullptr, 0) : -1;
        if (size < 0)
            return posixFailure(errno);
        bytes.resize(size);
    }
}

/// Day and hour are parsed apart: as one they would be local time, and none in the hour that summer time
/// skips.
std::optional<QDateTime> utcTime(const QString &text)
{
    // The library joins several dates, and gives fractions where a file has them.
    static const QRegularExpression form(QStringLiteral(
        "^(UTC )?(\\d{4}-\\d\\d-\\d\\d)[ T](\\d\\d:\\d\\d:\\d\\d)(?:\\.\\d+)?( UTC|Z(?: UTC)?)?(?: / .*)?$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch() || (match.capturedLength(1) == 0) == (match.capturedLength(4) == 0))
        return std::nullopt;
    const QDate day = QDate::fromString(match.captured(2), QStringLiteral("yyyy-MM-dd"));
    const QTime hour = QTime::fromString(match.captured(3), QStringLiteral("HH:mm:ss"));
    return day.isValid() && hour.isValid() ? std::optional(QDateTime(day, hour, Qt::UTC)) : std::nullopt;
}

/// 0, or the number of the error.
int removeAttribute(const QString &name, const QByteArray &file)
{
    return ::removexattr(file.constData(), nameOnDisk(name).constData()) == 0 ? 0 : errno;
}

} // namespace

Expected<QByteArray> extendedAttributeData(const QString &name, const QString &path)
{
    const QByteArray attribute = nameOnDisk(name);
    const QByteArray file = encodePath(path);
    return readSized([&](char *bytes, std::size_t size) {
        return ::getxattr(file.constData(), attribute.constData(), bytes, size);
    });
}

Expected<QVariant> extendedAttribute(const QString &name, const QString &path)
{
    const auto bytes = extendedAttributeData(name, path);
    if (!bytes)
        return tl::unexpected(bytes.error());
    auto value = parsePropertyList(*bytes);
    if (!value)
        qCInfo(lcQuorvin).noquote()
            << QStringLiteral("Failed to unserialize xattr %1: %2").arg(name, value.error().description);
    return value;
}

bool hasExtendedAttributes(int descriptor)
{
    return ::flistxattr(descriptor, nullptr, 0) > 0;
}

Expected<QStringList> listExtendedAttributesOnFileAtPath(const QString &path)
{
    const QByteArray file = encodePath(path);
    const auto bytes = readSized(
        [&](char *names, std::size_t size) { return ::listxattr(file.constData(), names, size); });
    if (!bytes)
        return tl::unexpected(bytes.error());
    QStringList names;
    for (const QByteArray &name : bytes->split('\0')) {
        if (name.startsWith(kNameSpace.data()) && name.size() > kNameSpace.size())
            names.append(QString::fromUtf8(name.sliced(kNameSpace.size())));
    }
    return names;
}

QString desktopAttributeFor(const QString &name)
{
    const auto row
        = std::ranges::find_if(kDesktopNames, [&](const auto &pair) { return name == pair.first; });
    return row == kDesktopNames.end() ? QString() : QString(row->second);
}

Expected<void> removeExtendedAtrribute(const QString &name, const QString &path)
{
    const QByteArray file = encodePath(path);
    const QString desktopName = desktopAttributeFor(name);
    int problem = removeAttribute(name, file);
    const bool isAbsent = problem == ENODATA;
    if (isAbsent && !desktopName.isEmpty())
        problem = removeAttribute(desktopName, file);
    else if (problem == 0 && name == kTagsAttribute)
        removeAttribute(desktopName, file);
    if (problem != 0)
        return posixFailure(problem);
    return {};
}

bool isTouchDate(const QString &date)
{
    return utcTime(date).has_value();
}

Expected<void> touchDate(const QString &date, const QString &path)
{
    const auto time = utcTime(date);
    if (!time)
        return failure(FailureKind::WrongDate);
    const std::array<timespec, 2> times{timespec{0, UTIME_OMIT}, timespec{time->toSecsSinceEpoch(), 0}};
    if (::utimensat(AT_FDCWD, encodePath(path).constData(), times.data(), 0) != 0)
        return posixFailure(errno);
    return {};
}

} // namespace quorvin::Utilities
