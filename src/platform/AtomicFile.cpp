// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/AtomicFile.h"

#include "platform/FileRights.h"
#include "platform/LinkTarget.h"
#include "platform/NativePath.h"
#include "platform/TemporaryFiles.h"
#include "platform/UnfinishedFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace quorvin {

namespace {

/// With a buffer of its own the device forgets why a write fell short.
constexpr QIODevice::OpenMode kWriting = QIODevice::WriteOnly | QIODevice::Unbuffered;

QByteArray folderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArrayLiteral(".") : path.left(std::max<qsizetype>(slash, 1));
}

constexpr mode_t kModeOfNewFile = 0666;
/// Of one that is going to get the mode of the file that it replaces.
constexpr mode_t kModeForNow = 0600;

} // namespace

Expected<std::unique_ptr<AtomicFile>> AtomicFile::create(const QString &target, Extent extent)
{
    std::unique_ptr<AtomicFile> file(new AtomicFile(extent));
    const auto [path, isDescriptor] = LinkTarget::of(encodePath(target));
    struct stat facts { };
    const bool exists = ::stat(path.constData(), &facts) == 0;
    const bool isFile = !isDescriptor && (!exists || S_ISREG(facts.st_mode));
    // A rename would replace what may not be written to.
    if (exists && ::faccessat(AT_FDCWD, path.constData(), W_OK, AT_EACCESS) != 0)
        return posixFailure(errno);
    const auto opened = isFile ? file->openTemporary(path, exists ? kModeForNow : kModeOfNewFile)
                               : file->openDirectly(path);
    if (!opened)
        return tl::unexpected(opened.error());
    if (exists && isFile)
        inheritRights(path, file->_device.handle());
    return file;
}

Expected<void> AtomicFile::openTemporary(const QByteArray &target, mode_t mode)
{
    const QByteArray folder = folderOf(target);
    if (_extent == Extent::Single)
        TemporaryFiles::removeLeftovers(folder);
    const auto opened = TemporaryFiles::open(folder, mode);
    if (!opened)
        return tl::unexpected(opened.error());
    _target = target;
    _temporary = opened->path;
    _slot = opened->slot;
    _device.open(opened->descriptor, kWriting, QFileDevice::AutoCloseHandle);
    return {};
}

Expected<void> AtomicFile::openDirectly(const QByteArray &target)
{
    const int descriptor = ::open(target.constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return posixFailure(errno);
    _device.open(descriptor, kWriting, QFileDevice::AutoCloseHandle);
    return {};
}

Expected<void> AtomicFile::commit(Existing existing)
{
    if (!_device.flush() || _device.error() != QFileDevice::NoError)
        return failure(_device.errorString());
    if (_temporary.isEmpty())
        return {};
    if (::fsync(_device.handle()) != 0)
        return posixFailure(errno);
    const bool moved = existing == Existing::Keep
        ? TemporaryFiles::renameKeepingExisting(_temporary, _target)
        : std::rename(_temporary.constData(), _target.constData()) == 0;
    if (!moved)
        return posixFailure(errno);
    UnfinishedFiles::remove(_slot);
    _temporary.clear();
    if (_extent == Extent::Single)
        syncFolder(decodePath(folderOf(_target)));
    return {};
}

void AtomicFile::setName(const QString &name)
{
    _target = folderOf(_target) + '/' + encodePath(name);
}

void AtomicFile::removeLeftovers(const QString &folder)
{
    TemporaryFiles::removeLeftovers(encodePath(folder));
}

void AtomicFile::syncFolder(const QString &folder)
{
    const int descriptor = ::open(encodePath(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

AtomicFile::~AtomicFile()
{
    _device.close();
    if (_temporary.isEmpty())
        return;
    ::unlink(_temporary.constData());
    UnfinishedFiles::remove(_slot);
}

Expected<void> writeWhole(const QString &target, const std::function<Expected<void>(QFile &device)> &write)
{
    const auto file = AtomicFile::create(target);
    if (!file)
        return tl::unexpected(file.error());
    return write((*file)->device()).and_then([&] { return (*file)->commit(); });
}

Expected<void> writeWhole(const QString &target, const QByteArray &bytes)
{
    return writeWhole(target, [&](QFile &device) -> Expected<void> {
        if (device.write(bytes) != bytes.size())
            return failure(device.errorString());
        return {};
    });
}

} // namespace quorvin
