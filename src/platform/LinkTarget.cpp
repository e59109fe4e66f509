// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LinkTarget.h"

#include "platform/NativePath.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>

namespace quorvin {

namespace {

constexpr int kMostLinks = 40; ///< as many as the kernel follows

/// "" when there is no such folder.
QByteArray realFolderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    const QByteArray folder = slash < 0 ? QByteArrayLiteral(".") : path.first(std::max<qsizetype>(slash, 1));
    std::array<char, PATH_MAX> real{};
    return ::realpath(folder.constData(), real.data()) ? QByteArray(real.data()) : QByteArray();
}

QByteArray joined(const QByteArray &folder, const QByteArray &name)
{
    return name.startsWith('/') ? name : folder + (folder.endsWith('/') ? "" : "/") + name;
}

QByteArray linkText(const QByteArray &path)
{
    QByteArray text(PATH_MAX, Qt::Uninitialized);
    const ssize_t size = ::readlink(path.constData(), text.data(), PATH_MAX);
    return text.first(std::max<ssize_t>(size, 0));
}

} // namespace

LinkTarget LinkTarget::of(const QByteArray &path)
{
    QByteArray at = path;
    for (int links = 0; links < kMostLinks; ++links) {
        const QByteArray folder = realFolderOf(at);
        if (folder.isEmpty())
            break;
        at = joined(folder, at.sliced(at.lastIndexOf('/') + 1));
        if (folder.startsWith("/proc/") && folder.endsWith("/fd"))
            return {at, true};
        const QByteArray text = linkText(at);
        if (text.isEmpty())
            return {at, false};
        at = joined(folder, text);
    }
    return {path, false};
}

std::optional<int> descriptorOfPath(const QString &path)
{
    const LinkTarget target = LinkTarget::of(encodePath(path));
    if (!target.isDescriptor || !target.path.startsWith("/proc/" + QByteArray::number(::getpid()) + '/'))
        return std::nullopt;
    bool ok = false;
    const int number = target.path.sliced(target.path.lastIndexOf('/') + 1).toInt(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

} // namespace quorvin
