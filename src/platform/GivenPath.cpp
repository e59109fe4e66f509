// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/GivenPath.h"

#include "platform/NativePath.h"

#include <filesystem>
#include <system_error>

namespace quorvin {

Expected<QString> pathOfGiven(const QString &word)
{
    if (word.isEmpty())
        return failure(QStringLiteral("a path is empty"));
    std::error_code problem;
    if (!word.startsWith(u'/') && std::filesystem::current_path(problem).empty())
        return failure(QStringLiteral("the current folder is gone, and a path counts from it"));
    return absolutePath(word);
}

} // namespace quorvin
