// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/OpenedProject.h"

#include "platform/NativePath.h"
#include "projects/ProjectItems.h"
#include "projects/ProjectReader.h"

#include <QCoreApplication>

#include <sys/stat.h>

#include <cerrno>

namespace quorvin {

bool isMissing(const QString &path)
{
    struct stat facts { };
    return ::stat(encodePath(path).constData(), &facts) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

Expected<OpenedProject> openProject(const QString &path, const std::stop_token &stop)
{
    auto project = readProject(path);
    if (!project)
        return tl::unexpected(project.error());
    OpenedProject opened;
    for (const ProjectFile &file : project->files) {
        if (stop.stop_requested())
            break;
        const FilelistItemPtr item = itemOf(file);
        if (isMissing(file.path)) {
            item->setResult(failure(QCoreApplication::translate("WindowProject", "The file is missing")));
            item->setIsDone(true);
        }
        opened.files.push_back(item);
        opened.roots.append(file.path);
    }
    opened.project = std::move(*project);
    return opened;
}

} // namespace quorvin
