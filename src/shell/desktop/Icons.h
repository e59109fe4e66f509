// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>
#include <QString>

namespace quorvin {

/// A bundled picture in the colour of the text around it, whatever the palette is when it is painted.
QIcon symbolIcon(const QString &name);

/// The bundled picture of a command, or where there is none of that name what the desktop's theme has, which
/// is not asked before the icon is looked at: to read a theme takes longer than to make a window.
QIcon commandIcon(const QString &name);

/// What stands for files of a MIME type. Main thread; the same icon is made once.
QIcon mimeIcon(const QString &mimeName);
/// The same for a file of which only the name is known; reads nothing from the disk.
QIcon fileNameIcon(const QString &fileName);

} // namespace quorvin
