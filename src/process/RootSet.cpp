// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/RootSet.h"

#include "platform/NativePath.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kMostCharacters = 16'384; ///< of all roots together

/// Depth first, so that the deepest is the last, and those of one folder stand together.
using Ranked = std::pair<qsizetype, QString>;

Ranked ranked(const QString &path)
{
    return {path == u'/' ? 0 : path.count(u'/'), path};
}

bool hasAbove(const QSet<QString> &roots, QString path)
{
    while (path.size() > 1) {
        path = withoutLastPathComponent(path);
        if (roots.contains(path))
            return true;
    }
    return false;
}

qsizetype charactersOf(const std::set<Ranked> &roots)
{
    qsizetype characters = 0;
    for (const auto &[depth, path] : roots)
        characters += path.size();
    return characters;
}

/// The deepest, and those beside it, give way to their folder.
void raiseDeepest(std::set<Ranked> &roots, qsizetype &characters)
{
    const QString folder = withoutLastPathComponent(std::prev(roots.end())->second);
    while (!roots.empty() && withoutLastPathComponent(std::prev(roots.end())->second) == folder) {
        characters -= std::prev(roots.end())->second.size();
        roots.erase(std::prev(roots.end()));
    }
    roots.insert(ranked(folder));
    characters += folder.size();
}

} // namespace

ReadableRoots::ReadableRoots(const QStringList &paths)
{
    const QSet<QString> given(paths.begin(), paths.end());
    std::set<Ranked> roots;
    for (const QString &path : given) {
        if (path.startsWith(u'/') && !hasAbove(given, path))
            roots.insert(ranked(path));
    }
    qsizetype characters = charactersOf(roots);
    while (roots.size() > kMost || (roots.size() > 1 && characters > kMostCharacters))
        raiseDeepest(roots, characters);
    for (const auto &[depth, path] : roots) {
        _paths.append(path);
        _roots.insert(path);
    }
}

bool ReadableRoots::cover(const QString &path) const
{
    return _roots.contains(path) || hasAbove(_roots, path);
}

void RootSet::add(const QStringList &paths)
{
    const std::lock_guard guard(_lock);
    _added += paths;
}

ReadableRoots RootSet::roots() const
{
    const std::lock_guard guard(_lock);
    if (!_added.isEmpty())
        _roots = ReadableRoots(_roots.paths() + std::exchange(_added, {}));
    return _roots;
}

} // namespace quorvin
