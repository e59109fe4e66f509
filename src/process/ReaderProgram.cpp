// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/ReaderProgram.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>

namespace quorvin {

Expected<std::string> readerProgram()
{
    std::array<char, PATH_MAX> self{};
    const ssize_t length = ::readlink("/proc/self/exe", self.data(), self.size() - 1);
    const std::string path(self.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
    // Without its folder the name would be looked for in the current one.
    if (!path.starts_with('/'))
        return posixFailure(length < 0 ? errno : ENOENT);
    return path.substr(0, path.rfind('/') + 1) + "quorvin-reader";
}

} // namespace quorvin
