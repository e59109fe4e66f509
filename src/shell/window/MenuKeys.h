// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QMainWindow;

namespace quorvin {

/// The keys that open menus: F10 the menu bar, Shift+F10 the context menu of what has the keyboard.
class MenuKeys : public QObject {
public:
    /// Belongs to the window.
    explicit MenuKeys(QMainWindow *window);
};

} // namespace quorvin
