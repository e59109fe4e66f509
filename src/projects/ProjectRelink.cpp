// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/ProjectRelink.h"

#include "intake/FilelistFiller.h"
#include "platform/NativePath.h"
#include "projects/FactKeeping.h"

#include <QStringList>

#include <algorithm>

namespace quorvin {

namespace {

QString belowFolder(const QString &folder, const QString &rest)
{
    return folder.endsWith(u'/') ? folder + rest : folder + u'/' + rest;
}

/// Under the longest end of the old path that leads to a file; "" when none does.
QString pathByItsFolders(const QString &old, const QString &folder)
{
    for (qsizetype slash = old.indexOf(u'/'); slash >= 0; slash = old.indexOf(u'/', slash + 1)) {
        QString path = belowFolder(folder, old.mid(slash + 1));
        if (statFacts(path))
            return path;
    }
    return {};
}

/// How many components both paths have in common at their ends.
int commonEnd(const QString &left, const QString &right)
{
    const QStringList leftNames = left.split(u'/');
    const QStringList rightNames = right.split(u'/');
    const auto ends
        = std::mismatch(leftNames.rbegin(), leftNames.rend(), rightNames.rbegin(), rightNames.rend());
    return static_cast<int>(ends.first - leftNames.rbegin());
}

bool hasKeptSize(const ProjectFile &file, const QString &path)
{
    const auto facts = statFacts(path);
    return facts && (!file.facts.size || file.facts.size == facts->size);
}

/// "" when there is none, or more than one that is as good.
QString bestOf(const QStringList &candidates, const ProjectFile &file)
{
    QString best;
    int most = 0;
    for (const QString &path : candidates) {
        const int common = commonEnd(path, file.path);
        if (common < most || !hasKeptSize(file, path))
            continue;
        best = common == most ? QString() : path;
        most = common;
    }
    return best;
}

} // namespace

QHash<QString, QString> relinkedPaths(const std::vector<ProjectFile> &missing, const QString &folder,
                                      const std::stop_token &stop,
                                      const std::function<void(std::size_t)> &progress)
{
    QHash<QString, QString> found;
    QHash<QString, QStringList> candidates; ///< by the names of those that are not found yet
    for (const ProjectFile &file : missing) {
        if (stop.stop_requested())
            return found;
        if (const QString path = pathByItsFolders(file.path, folder); !path.isEmpty())
            found.insert(file.path, path);
        else
            candidates.insert(lastPathComponent(file.path), {});
    }
    if (candidates.isEmpty())
        return found;
    const FilelistFiller walk = FilelistFiller::fillerWithSourceArray({folder}, stop, progress);
    for (const FilelistItemPtr &item : walk.filelist()) {
        const auto names = candidates.find(lastPathComponent(item->filename()));
        if (names != candidates.end())
            names->append(item->filename());
    }
    for (const ProjectFile &file : missing) {
        if (found.contains(file.path))
            continue;
        if (const QString path = bestOf(candidates.value(lastPathComponent(file.path)), file);
            !path.isEmpty())
            found.insert(file.path, path);
    }
    return found;
}

} // namespace quorvin
