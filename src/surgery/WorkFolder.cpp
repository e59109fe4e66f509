// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/WorkFolder.h"

#include "filefacts/Paths.h"
#include "platform/AtomicFile.h"
#include "platform/FileCopy.h"
#include "platform/FileRights.h"
#include "platform/NativePath.h"
#include "platform/UnfinishedFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace quorvin {

namespace {

const QByteArray kCopyName = QByteArrayLiteral("/copy");

/// Closes a descriptor, and tells what went wrong with it.
class Descriptor {
public:
    explicit Descriptor(int number) : _number(number) { }
    ~Descriptor() { ::close(_number); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return _number; }
    bool isOpen() const { return _number >= 0; }

private:
    int _number;
};

bool inheritTimes(const QByteArray &from, int to)
{
    struct stat facts { };
    if (::stat(from.constData(), &facts) != 0)
        return false;
    const std::array times{facts.st_atim, facts.st_mtim};
    return ::futimens(to, times.data()) == 0;
}

} // namespace

Expected<std::unique_ptr<WorkFolder>> WorkFolder::create(const QString &parent)
{
    const QByteArray folder = encodePath(parent);
    TemporaryFiles::removeLeftovers(folder);
    return TemporaryFiles::openFolder(folder).map([&](const TemporaryFiles::Opened &opened) {
        return std::unique_ptr<WorkFolder>(new WorkFolder(parent, opened));
    });
}

WorkFolder::WorkFolder(QString parent, const TemporaryFiles::Opened &opened)
    : _parent(std::move(parent)),
      _descriptor(opened.descriptor),
      _path(opened.path),
      _folderSlot(opened.slot),
      _copySlot(UnfinishedFiles::add(_path + kCopyName))
{
}

WorkFolder::~WorkFolder()
{
    TemporaryFiles::removeFolder(_path);
    if (_hasPublished)
        AtomicFile::syncFolder(_parent);
    UnfinishedFiles::remove(_copySlot);
    UnfinishedFiles::remove(_folderSlot);
    ::close(_descriptor);
}

QString WorkFolder::path() const
{
    return decodePath(_path);
}

QString WorkFolder::copy() const
{
    return decodePath(_path + kCopyName);
}

Expected<void> WorkFolder::makeCopy(const std::function<bool(int)> &fill)
{
    const QByteArray path = _path + kCopyName;
    const Descriptor to(::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (to.isOpen() && fill(to.number()))
        return {};
    const int problem = errno;
    discard();
    return posixFailure(problem);
}

Expected<void> WorkFolder::makeEmpty()
{
    return makeCopy([](int) { return true; });
}

Expected<void> WorkFolder::copyFrom(const RegularFile &file)
{
    return makeCopy([&](int to) { return copyBytes(file.descriptor(), to); });
}

Expected<QString> WorkFolder::publish(const Place &place)
{
    const QByteArray copy = _path + kCopyName;
    const QByteArray rightsOf = encodePath(place.rightsOf);
    // The process that has worked on it could have put anything there.
    const Descriptor file(::open(copy.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat facts { };
    if (!file.isOpen() || ::fstat(file.number(), &facts) != 0)
        return posixFailure(errno);
    if (!S_ISREG(facts.st_mode) || facts.st_nlink != 1)
        return posixFailure(EINVAL);
    inheritRights(rightsOf, file.number());
    if ((place.keepsTimes && !inheritTimes(rightsOf, file.number())) || ::fsync(file.number()) != 0)
        return posixFailure(errno);
    return moveCopyTo(place).map([this](QString path) {
        _hasPublished = true;
        return path;
    });
}

Expected<QString> WorkFolder::moveCopyTo(const Place &place) const
{
    const QByteArray copy = _path + kCopyName;
    if (!place.isUnique) {
        if (std::rename(copy.constData(), encodePath(place.target).constData()) != 0)
            return posixFailure(errno);
        return place.target;
    }
    return Utilities::takeUniqueFilename(place.target, [&](const QString &path) -> Expected<void> {
        if (!TemporaryFiles::renameKeepingExisting(copy, encodePath(path)))
            return posixFailure(errno);
        return {};
    });
}

void WorkFolder::discard()
{
    ::unlink((_path + kCopyName).constData());
}

} // namespace quorvin
