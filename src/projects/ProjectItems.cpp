// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/ProjectItems.h"

namespace quorvin {

std::vector<ProjectFile> projectFilesOf(const std::vector<FilelistItemPtr> &list)
{
    std::vector<ProjectFile> files;
    files.reserve(list.size());
    for (const FilelistItemPtr &file : list)
        files.push_back(
            {.path = file->filename(), .shownComponents = shownComponentsOf(file->prefixedPath())});
    return files;
}

FilelistItemPtr itemOf(const ProjectFile &file)
{
    return FilelistItem::itemWithFilename(file.path, file.shownPath());
}

} // namespace quorvin
