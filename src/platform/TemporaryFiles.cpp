// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/TemporaryFiles.h"

#include "platform/UnfinishedFiles.h"

#include <QRandomGenerator>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <memory>

namespace quorvin::TemporaryFiles {

namespace {

constexpr QByteArrayView kPrefix(".quorvin-");
constexpr qsizetype kRandomLetters = 6;

QByteArray randomName()
{
    constexpr QByteArrayView kLetters("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
    QByteArray name(kRandomLetters, Qt::Uninitialized);
    for (char &letter : name)
        letter = kLetters[QRandomGenerator::global()->bounded(static_cast<int>(kLetters.size()))];
    return name;
}

bool hasOurName(QByteArrayView name)
{
    return name.size() == kPrefix.size() + kRandomLetters && name.startsWith(kPrefix)
        && std::ranges::all_of(name.sliced(kPrefix.size()), [](char c) { return std::isalnum(c) != 0; });
}

bool isStillThere(int descriptor)
{
    struct stat facts { };
    return ::fstat(descriptor, &facts) == 0 && facts.st_nlink > 0;
}

/// Makes and opens something of a new name with `make`, which gives a descriptor, or -1 with errno.
template <typename Make>
Expected<Opened> makeUnder(const QByteArray &folder, const Make &make)
{
    while (true) {
        const QByteArray path = folder + '/' + kPrefix.toByteArray() + randomName();
        // First, as a signal may come at any moment.
        const int slot = UnfinishedFiles::add(path);
        const int descriptor = make(path.constData());
        const int problem = errno;
        if (descriptor >= 0) {
            // Where the file system has no locks, nobody gets one to remove the file with.
            ::flock(descriptor, LOCK_EX);
            // Between its making and its lock another run may have taken the file for a leftover.
            if (isStillThere(descriptor))
                return Opened{descriptor, path, slot};
            ::close(descriptor);
        }
        UnfinishedFiles::remove(slot);
        if (descriptor < 0 && problem != EEXIST)
            return posixFailure(problem);
    }
}

struct FolderCloser {
    void operator()(DIR *folder) const { ::closedir(folder); }
};
using Folder = std::unique_ptr<DIR, FolderCloser>;

/// Takes the descriptor.
void removeFilesIn(int descriptor)
{
    const Folder entries(::fdopendir(descriptor));
    if (!entries) {
        ::close(descriptor);
        return;
    }
    while (const dirent *entry = ::readdir(entries.get()))
        ::unlinkat(descriptor, entry->d_name, 0);
}

void removeUnlessHeld(int folder, const char *name)
{
    const int descriptor = ::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return;
    struct stat facts { };
    const bool isOurs = ::fstat(descriptor, &facts) == 0 && facts.st_uid == ::geteuid()
        && (S_ISREG(facts.st_mode) || S_ISDIR(facts.st_mode));
    if (isOurs && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        if (S_ISDIR(facts.st_mode))
            removeFilesIn(::dup(descriptor));
        ::unlinkat(folder, name, S_ISDIR(facts.st_mode) ? AT_REMOVEDIR : 0);
    }
    ::close(descriptor);
}

} // namespace

Expected<Opened> open(const QByteArray &folder, mode_t mode)
{
    return makeUnder(folder, [mode](const char *path) {
        return ::open(path, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    });
}

Expected<Opened> openFolder(const QByteArray &folder)
{
    return makeUnder(folder, [](const char *path) {
        if (::mkdir(path, S_IRWXU) != 0)
            return -1;
        const int descriptor = ::open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (descriptor < 0) {
            // Another run may have taken it for a leftover already; another name will do.
            const int problem = errno == ENOENT ? EEXIST : errno;
            ::rmdir(path);
            errno = problem;
        }
        return descriptor;
    });
}

bool renameKeepingExisting(const QByteArray &from, const QByteArray &to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // This file system has no such rename: a hard link does not replace either.
    return ::link(from.constData(), to.constData()) == 0 && ::unlink(from.constData()) == 0;
}

void removeFolder(const QByteArray &path)
{
    removeFilesIn(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ::rmdir(path.constData());
}

void removeLeftovers(const QByteArray &folder)
{
    const Folder entries(::opendir(folder.constData()));
    if (!entries)
        return;
    while (const dirent *entry = ::readdir(entries.get())) {
        if (hasOurName(entry->d_name))
            removeUnlessHeld(::dirfd(entries.get()), entry->d_name);
    }
}

} // namespace quorvin::TemporaryFiles
