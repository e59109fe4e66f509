// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/Project.h"

#include "platform/NativePath.h"

namespace quorvin {

bool isProjectPath(const QString &path)
{
    return pathExtension(path).compare(kProjectExtension, Qt::CaseInsensitive) == 0;
}

int shownComponentsOf(const QString &shownPath)
{
    return static_cast<int>(shownPath.count(u'/')) + 1;
}

QString ProjectFile::shownPath() const
{
    qsizetype start = path.size();
    for (int i = 0; i < shownComponents && start > 0; ++i)
        start = path.lastIndexOf(u'/', start - 1);
    return path.mid(start + 1);
}

} // namespace quorvin
