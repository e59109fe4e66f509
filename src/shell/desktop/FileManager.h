// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

/// Shows the file in its folder with the desktop's file manager, or opens the folder where there is none that
/// can. Returns at once. Main thread.
void revealInFileManager(const QString &path);

/// Opens the file or folder with what the desktop has for it; false when it has nothing. Returns at once.
/// Main thread.
bool openWithDesktop(const QString &path);

} // namespace quorvin
