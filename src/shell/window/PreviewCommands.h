// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace quorvin {

class MainWindowController;
class PreviewPanel;
struct PanelKey;

/// What one window does with the preview panel: opens and closes it, has it follow the current file, and
/// takes the keys that the panel hands back. Main thread.
class PreviewCommands : public QObject {
    Q_OBJECT
public:
    /// Belongs to the window. The panel must outlive it.
    PreviewCommands(PreviewPanel &panel, MainWindowController &window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The window is closing, and the panel may be gone before it is.
    void leave();
    /// The panel shows a file of this window.
    bool isUser() const;
    void toggle();
    void follow();
    void showState();
    void takeKey(const PanelKey &key);
    /// 0 where windows of several programs cannot stand above each other.
    quint64 windowNumber() const;

    PreviewPanel &_panel;
    MainWindowController &_window;
};

} // namespace quorvin
