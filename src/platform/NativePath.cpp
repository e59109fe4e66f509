// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NativePath.h"

#include "model/Utf8.h"

#include <QStringList>

#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <memory>

namespace quorvin {

namespace {

constexpr char16_t kEscapeBase = 0xDC00;

bool isEscapedByte(QStringView text, qsizetype index)
{
    return text[index].isLowSurrogate() && (index == 0 || !text[index - 1].isHighSurrogate());
}

/// Length of the valid sequence at the front, 0 when there is none.
qsizetype validSequenceLength(QByteArrayView bytes)
{
    for (qsizetype length = 1; length <= std::min<qsizetype>(4, bytes.size()); ++length) {
        if (bytes.first(length).isValidUtf8())
            return length;
    }
    return 0;
}

struct FreeDeleter {
    void operator()(char *memory) const { std::free(memory); }
};

QByteArray resolved(const QByteArray &path)
{
    const std::unique_ptr<char, FreeDeleter> real(::realpath(path.constData(), nullptr));
    return real ? QByteArray(real.get()) : path;
}

QByteArray currentFolder()
{
    const std::unique_ptr<char, FreeDeleter> folder(::getcwd(nullptr, 0));
    return folder ? QByteArray(folder.get()) : QByteArrayLiteral("/");
}

} // namespace

QString decodePath(const QByteArray &bytes)
{
    if (bytes.isValidUtf8())
        return textOfUtf8(bytes);
    QString path;
    for (QByteArrayView rest = bytes; !rest.isEmpty();) {
        const qsizetype length = validSequenceLength(rest);
        if (length == 0)
            path.append(QChar(static_cast<char16_t>(kEscapeBase + static_cast<uchar>(rest.front()))));
        else
            path.append(textOfUtf8(rest.first(length)));
        rest = rest.sliced(std::max<qsizetype>(1, length));
    }
    return path;
}

QByteArray encodePath(const QString &path)
{
    if (isUtf8Path(path))
        return path.toUtf8();
    QByteArray bytes;
    for (qsizetype i = 0; i < path.size(); ++i) {
        if (isEscapedByte(path, i)) {
            bytes.append(static_cast<char>(path[i].unicode() - kEscapeBase));
        } else {
            const qsizetype length = path[i].isHighSurrogate() ? 2 : 1;
            bytes.append(QStringView(path).mid(i, length).toUtf8());
            i += length - 1;
        }
    }
    return bytes;
}

QStringList decodeWords(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(decodePath(argv[i]));
    return words;
}

bool isUtf8Path(const QString &path)
{
    return path.isValidUtf16();
}

QString absolutePath(const QString &path)
{
    QByteArray bytes = encodePath(path);
    if (!bytes.startsWith('/'))
        bytes = currentFolder() + '/' + bytes;
    if (bytes.endsWith("/..") || bytes.endsWith("/../"))
        bytes = resolved(bytes);

    QByteArrayList components = bytes.split('/');
    components.removeIf([](const QByteArray &name) { return name.isEmpty() || name == "."; });
    return decodePath('/' + components.join('/'));
}

QString lastPathComponent(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

QString withoutLastPathComponent(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return path.left(slash == 0 ? 1 : std::max<qsizetype>(slash, 0));
}

QString pathExtension(const QString &path)
{
    const QString name = lastPathComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.mid(dot + 1) : QString();
}

QString pathStem(const QString &path)
{
    const QString name = lastPathComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.left(dot) : name;
}

} // namespace quorvin
