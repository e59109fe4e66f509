// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileCopy.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace quorvin {

namespace {

constexpr std::size_t kPiece = std::size_t{1} << 30;

/// For file systems between which the kernel does not copy.
bool copyByHand(int from, int to)
{
    std::array<char, 65'536> piece;
    off_t at = 0;
    while (true) {
        const ssize_t count = ::pread(from, piece.data(), piece.size(), at);
        if (count <= 0)
            return count == 0;
        if (!writeBytes(to, piece.data(), static_cast<std::size_t>(count), at))
            return false;
        at += count;
    }
}

} // namespace

bool copyBytes(int from, int to)
{
    if (::ioctl(to, FICLONE, from) == 0)
        return true;
    loff_t at = 0;
    loff_t written = 0;
    while (true) {
        const ssize_t count = ::copy_file_range(from, &at, to, &written, kPiece, 0);
        if (count == 0)
            // Some file systems have files that the kernel takes to be empty.
            return at > 0 || copyByHand(from, to);
        if (count < 0)
            return at == 0 && copyByHand(from, to);
    }
}

bool writeBytes(int to, const void *bytes, std::size_t count, off_t place)
{
    const auto *next = static_cast<const char *>(bytes);
    while (count > 0) {
        const ssize_t written = ::pwrite(to, next, count, place);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        next += written;
        place += written;
        count -= static_cast<std::size_t>(written);
    }
    return true;
}

} // namespace quorvin
