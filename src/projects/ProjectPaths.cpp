// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/ProjectPaths.h"

#include "platform/FileUri.h"
#include "platform/LinkTarget.h"
#include "platform/NativePath.h"

#include <algorithm>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

QByteArrayList componentsOf(const QByteArray &path)
{
    QByteArrayList components = path.split('/');
    components.removeAll(QByteArray());
    return components;
}

/// One scheme or another stands before the first slash.
bool hasScheme(const QByteArray &url)
{
    const qsizetype colon = url.indexOf(':');
    const qsizetype slash = url.indexOf('/');
    return colon >= 0 && (slash < 0 || colon < slash);
}

Expected<QString> pathOfFileUrl(const QByteArray &url)
{
    const auto path = pathFromUri(decodePath(url));
    if (!path)
        return failure(u"it is not of a file on this machine"_s);
    if (path->contains(QChar::Null))
        return failure(u"it holds a zero byte"_s);
    return *path;
}

} // namespace

QString folderOfProject(const QString &projectPath)
{
    return withoutLastPathComponent(decodePath(LinkTarget::of(encodePath(projectPath)).path));
}

QByteArray projectUrl(const QString &path, const QString &folder)
{
    const QByteArrayList file = componentsOf(encodePath(path));
    const QByteArrayList base = componentsOf(encodePath(folder));
    const auto [fileEnd, baseEnd] = std::mismatch(file.begin(), file.end(), base.begin(), base.end());
    const qsizetype common = fileEnd - file.begin();
    if (common == 0 && !base.isEmpty())
        return fileUri(path);
    const QByteArrayList up(base.size() - common, QByteArrayLiteral(".."));
    const QByteArrayList names = up + file.mid(common);
    return names.isEmpty() ? QByteArrayLiteral(".") : names.join('/').toPercentEncoding("/");
}

Expected<QString> pathOfProjectUrl(const QByteArray &url, const QString &folder)
{
    if (hasScheme(url))
        return pathOfFileUrl(url);
    const QByteArray relative = QByteArray::fromPercentEncoding(url);
    if (relative.isEmpty())
        return failure(u"it is empty"_s);
    if (relative.startsWith('/'))
        return failure(u"it is absolute without \"file:\""_s);
    if (relative.contains('\0'))
        return failure(u"it holds a zero byte"_s);
    QByteArrayList components = componentsOf(encodePath(folder));
    for (const QByteArray &name : componentsOf(relative)) {
        if (name == ".." && !components.isEmpty())
            components.removeLast();
        else if (name != "." && name != "..")
            components.append(name);
    }
    return decodePath('/' + components.join('/'));
}

QByteArray escapedName(const QString &name)
{
    return encodePath(name).toPercentEncoding();
}

Expected<QString> nameFromEscaped(const QByteArray &escaped)
{
    const QByteArray name = QByteArray::fromPercentEncoding(escaped);
    if (name.isEmpty() || name == "." || name == ".." || name.contains('/') || name.contains('\0'))
        return failure(u"it is no name of a file"_s);
    return decodePath(name);
}

} // namespace quorvin
