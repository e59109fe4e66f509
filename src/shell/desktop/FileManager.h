// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>

class QObject;

namespace quorvin {

/// Shows the file in its folder with the desktop's file manager, or opens the folder where there is none that
/// can. Returns at once; `whenFailed` is called when there is nothing to show it with, now or later, unless
/// the context has gone. Main thread.
void revealInFileManager(const QString &path, QObject *context = nullptr,
                         const std::function<void()> &whenFailed = {});

/// Opens the file or folder with what the desktop has for it; false when it has nothing. Returns at once.
/// Main thread.
bool openWithDesktop(const QString &path);

} // namespace quorvin
