// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArray>
#include <QString>

namespace quorvin {

/// How a project names files. Any thread.

/// The folder that relative addresses of a project count from: where the file lies, links followed.
QString folderOfProject(const QString &projectPath);

/// The address of an absolute path: relative to the folder where both have more than the root in common, else
/// "file:///…". Every byte that is no plain character is escaped.
QByteArray projectUrl(const QString &path, const QString &folder);

/// The absolute path of an address. A relative one may climb by "..", which goes by the text of the folder's
/// path. The error, a reason, stands for an address that is empty or is not of a file on this machine, and
/// for one that looks relative and is not.
Expected<QString> pathOfProjectUrl(const QByteArray &url, const QString &folder);

/// A name in a folder, with every byte that is no plain character escaped.
QByteArray escapedName(const QString &name);
/// An error for what is no name of a file.
Expected<QString> nameFromEscaped(const QByteArray &escaped);

} // namespace quorvin
