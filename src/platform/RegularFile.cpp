// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RegularFile.h"

#include "platform/NativePath.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <utility>

namespace quorvin {

namespace {

QString nameOfKind(mode_t mode)
{
    if (S_ISDIR(mode))
        return QStringLiteral("Is a folder");
    if (S_ISFIFO(mode))
        return QStringLiteral("Is a FIFO, not a regular file");
    if (S_ISSOCK(mode))
        return QStringLiteral("Is a socket, not a regular file");
    return QStringLiteral("Is a device, not a regular file");
}

qint64 millisecondsOf(const statx_timestamp &time)
{
    return time.tv_sec * 1000 + time.tv_nsec / 1'000'000;
}

} // namespace

Expected<RegularFile> RegularFile::open(const QString &path)
{
    const QByteArray bytes = encodePath(path);
    struct stat found { };
    bool isThere = ::lstat(bytes.constData(), &found) == 0;
    const bool isLink = isThere && S_ISLNK(found.st_mode);
    if (isLink)
        isThere = ::stat(bytes.constData(), &found) == 0;
    if (!isThere)
        return posixFailure(errno);
    if (!S_ISREG(found.st_mode))
        return failure(nameOfKind(found.st_mode));

    // The name may have changed hands since: O_NONBLOCK keeps a FIFO from blocking, the second look refuses
    // it.
    RegularFile file(::open(bytes.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (file._descriptor < 0 || !file.readAttributes())
        return posixFailure(errno);
    if (!isLink)
        file._path = path;
    return file;
}

bool RegularFile::readAttributes()
{
    struct statx facts { };
    if (::statx(_descriptor, "", AT_EMPTY_PATH, STATX_BASIC_STATS | STATX_BTIME, &facts) != 0)
        return false;
    if (!S_ISREG(facts.stx_mode)) {
        errno = EINVAL;
        return false;
    }
    _size = facts.stx_size;
    _modificationTime = millisecondsOf(facts.stx_mtime);
    if (facts.stx_mask & STATX_BTIME)
        _creationTime = millisecondsOf(facts.stx_btime);
    return true;
}

RegularFile::RegularFile(RegularFile &&other) noexcept
    : _descriptor(std::exchange(other._descriptor, -1)),
      _path(std::move(other._path)),
      _size(other._size),
      _modificationTime(other._modificationTime),
      _creationTime(other._creationTime)
{
}

RegularFile &RegularFile::operator=(RegularFile &&other) noexcept
{
    std::swap(_descriptor, other._descriptor);
    _path = std::move(other._path);
    _size = other._size;
    _modificationTime = other._modificationTime;
    _creationTime = other._creationTime;
    return *this;
}

RegularFile::~RegularFile()
{
    if (_descriptor >= 0)
        ::close(_descriptor);
}

QString RegularFile::resolvedPath() const
{
    if (!_path.isEmpty())
        return _path;
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const ssize_t length = ::readlink(descriptorPath().toLatin1().constData(), target.data(), PATH_MAX);
    return length < 0 ? QString() : decodePath(target.first(length));
}

QString RegularFile::descriptorPath() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(_descriptor);
}

QByteArray RegularFile::head(qsizetype length) const
{
    QByteArray bytes(length, Qt::Uninitialized);
    const ssize_t count = ::pread(_descriptor, bytes.data(), static_cast<std::size_t>(length), 0);
    bytes.truncate(count < 0 ? 0 : count);
    return bytes;
}

QString systemErrorText(int number)
{
    return QString::fromLocal8Bit(std::strerror(number));
}

} // namespace quorvin
