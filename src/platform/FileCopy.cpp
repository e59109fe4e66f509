// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileCopy.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/types.h>
#include <unistd.h>

#include <array>

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
        for (ssize_t done = 0; done < count;) {
            const ssize_t written
                = ::pwrite(to, piece.data() + done, static_cast<std::size_t>(count - done), at + done);
            if (written <= 0)
                return false;
            done += written;
        }
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

} // namespace quorvin
