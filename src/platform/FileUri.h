// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace quorvin {

/// "file:///…" with every byte of the path that is no plain character escaped.
QByteArray fileUri(const QString &path);

/// The path of an address of a file on this machine, which may go by its name; absent for every other text.
/// What is not escaped is taken as it is, as with `decodePath`.
std::optional<QString> pathFromUri(const QString &uri);

/// The paths among the lines of a "text/uri-list".
QStringList pathsFromUriList(const QByteArray &list);
QByteArray uriListOf(const QStringList &paths);

} // namespace quorvin
