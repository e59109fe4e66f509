// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quorvin {

/// File names are bytes; the system works with strings. A name that is valid UTF-8 is that text. In any other
/// name each byte that is no part of a valid sequence stands as the lone surrogate U+DC80…U+DCFF, so that no
/// two names get the same string and every string leads back to its bytes. Written out as text, such a unit
/// becomes a question mark.

QString decodePath(const QByteArray &bytes);
QByteArray encodePath(const QString &path);
/// The words of a command line without the program's own name.
QStringList decodeWords(int argc, char **argv);

/// False when the path holds bytes that are not UTF-8.
bool isUtf8Path(const QString &path);

/// The path joined to the current folder if it is relative, without doubled or trailing slashes and without
/// "." components. Symbolic links stay unresolved, unless the last component is "..": then the whole path is
/// resolved.
QString absolutePath(const QString &path);

/// "" for the root.
QString lastPathComponent(const QString &path);
QString withoutLastPathComponent(const QString &path);

/// What stands behind the last dot of the last component; "" without a dot, or when the dot is its first
/// character.
QString pathExtension(const QString &path);
/// The last component without its extension.
QString pathStem(const QString &path);

} // namespace quorvin
