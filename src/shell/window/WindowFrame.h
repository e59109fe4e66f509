// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QWidget;

namespace quorvin {

class LiveSettings;

/// Where a window stands and how large it is, kept from run to run. Main thread.
class WindowFrame : public QObject {
public:
    /// Belongs to the window. `settings` must outlive it.
    WindowFrame(QWidget &window, LiveSettings &settings);

    /// As a window was closed last, or at first in a size that fits on the screen.
    void restore();
    /// For a window that is not shown yet: beside that one, and on its screen.
    void placeBeside(const QWidget &before);
    /// Brings it back onto its screen, as soon as its decoration is known.
    void windowDidShow();
    void save();

private:
    bool isFree() const;
    void keepOnScreen();

    QWidget &_window;
    LiveSettings &_settings;
};

} // namespace quorvin
