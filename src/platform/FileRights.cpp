// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileRights.h"

#include <QList>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace quorvin {

namespace {

constexpr qsizetype kMostAttributeBytes = 65'536; ///< the kernel's own limit, for names and for values

void copyAttributes(const QByteArray &from, int to)
{
    QByteArray names(kMostAttributeBytes, Qt::Uninitialized);
    const ssize_t length
        = ::listxattr(from.constData(), names.data(), static_cast<std::size_t>(names.size()));
    if (length <= 0)
        return;
    QByteArray value(kMostAttributeBytes, Qt::Uninitialized);
    for (const QByteArray &name : names.first(length - 1).split('\0')) {
        const ssize_t size = ::getxattr(from.constData(), name.constData(), value.data(),
                                        static_cast<std::size_t>(value.size()));
        if (size >= 0)
            ::fsetxattr(to, name.constData(), value.constData(), static_cast<std::size_t>(size), 0);
    }
}

} // namespace

/// Owner first, since a change of owner clears bits of the mode.
void inheritRights(const QByteArray &existing, int descriptor)
{
    struct stat facts { };
    if (::stat(existing.constData(), &facts) != 0)
        return;
    const bool isHandedOn = ::fchown(descriptor, facts.st_uid, facts.st_gid) == 0
        || ::fchown(descriptor, static_cast<uid_t>(-1), facts.st_gid) == 0;
    const mode_t mode = facts.st_mode & 07777;
    ::fchmod(descriptor, isHandedOn ? mode : mode & ~static_cast<mode_t>(S_ISUID | S_ISGID));
    copyAttributes(existing, descriptor);
}

} // namespace quorvin
