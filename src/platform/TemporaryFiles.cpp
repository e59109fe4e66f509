// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/TemporaryFiles.h"

#include <QRandomGenerator>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>

namespace quorvin::TemporaryFiles {

namespace {

constexpr QByteArrayView kPrefix(".quorvin-");
constexpr QByteArrayView kPattern("XXXXXX");

QByteArray randomName()
{
    constexpr QByteArrayView kLetters("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
    QByteArray name(kPattern.size(), Qt::Uninitialized);
    for (char &letter : name)
        letter = kLetters[QRandomGenerator::global()->bounded(static_cast<int>(kLetters.size()))];
    return name;
}

bool hasOurName(QByteArrayView name)
{
    return name.size() == kPrefix.size() + kPattern.size() && name.startsWith(kPrefix)
        && std::ranges::all_of(name.sliced(kPrefix.size()), [](char c) { return std::isalnum(c) != 0; });
}

bool isStillThere(int descriptor)
{
    struct stat facts { };
    return ::fstat(descriptor, &facts) == 0 && facts.st_nlink > 0;
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
    while (true) {
        Opened opened;
        opened.path = folder + '/' + kPrefix.toByteArray() + randomName();
        opened.descriptor = ::open(opened.path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (opened.descriptor < 0 && errno == EEXIST)
            continue;
        if (opened.descriptor < 0)
            return posixFailure(errno);
        // Where the file system has no locks, nobody gets one to remove the file with.
        ::flock(opened.descriptor, LOCK_EX);
        // Between its making and its lock another run may have taken the file for a leftover.
        if (isStillThere(opened.descriptor))
            return opened;
        ::close(opened.descriptor);
    }
}

Expected<Opened> openFolder(const QByteArray &folder)
{
    while (true) {
        Opened opened;
        opened.path = folder + '/' + kPrefix.toByteArray() + kPattern.toByteArray();
        if (!::mkdtemp(opened.path.data()))
            return posixFailure(errno);
        opened.descriptor = ::open(opened.path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (opened.descriptor < 0) {
            const int problem = errno;
            ::rmdir(opened.path.constData());
            return posixFailure(problem);
        }
        ::flock(opened.descriptor, LOCK_EX);
        if (isStillThere(opened.descriptor))
            return opened;
        ::close(opened.descriptor);
    }
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
