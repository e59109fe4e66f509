// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>
#include <QString>

namespace quorvin {

/// A bundled picture in the colour of the text around it, whatever the palette is when it is painted.
QIcon symbolIcon(const QString &name);

/// The icon of the desktop's theme, or the bundled one of that name; null without either.
QIcon themedIcon(const QString &name);

/// What stands for files of a MIME type. Main thread; the same icon is made once.
QIcon mimeIcon(const QString &mimeName);
/// The same for a file of which only the name is known; reads nothing from the disk.
QIcon fileNameIcon(const QString &fileName);

} // namespace quorvin
