// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Output.h"

#include "platform/LinkTarget.h"
#include "platform/NativePath.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

std::optional<struct stat> factsOf(const QString &path)
{
    struct stat facts { };
    return ::stat(encodePath(path).constData(), &facts) == 0 ? std::optional(facts) : std::nullopt;
}

} // namespace

Place placeOf(const std::optional<QString> &output)
{
    if (!output || *output == "-"_L1)
        return Place::Output;
    const std::optional<int> descriptor = descriptorOfPath(*output);
    if (descriptor == STDOUT_FILENO)
        return Place::Output;
    return descriptor == STDERR_FILENO ? Place::Errors : Place::File;
}

Expected<void> checkOutputFile(const QString &output, const QString &extension, bool isForced,
                               const std::vector<FilelistItemPtr> &inputs)
{
    const auto existing = factsOf(output);
    if (!existing || !S_ISREG(existing->st_mode))
        return {};
    const bool isInput = std::ranges::any_of(inputs, [&](const FilelistItemPtr &file) {
        const auto facts = factsOf(file->filename());
        return facts && facts->st_dev == existing->st_dev && facts->st_ino == existing->st_ino;
    });
    if (isInput)
        return failure(u"%1 is one of the files to read"_s.arg(output));
    const QString name = decodePath(LinkTarget::of(encodePath(output)).path);
    if (!isForced && pathExtension(name).compare(extension, Qt::CaseInsensitive) != 0)
        return failure(u"%1 is there already and no .%2 file; --force replaces it"_s.arg(output, extension));
    return {};
}

} // namespace quorvin::cli
