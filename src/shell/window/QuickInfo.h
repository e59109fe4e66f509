// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QObject>

class QWidget;

namespace quorvin {

class CommandSet;
class FilelistController;
class LiveSettings;
class QuickInfoPanel;

/// The Quick Info panel of a window: opened and closed by its command, it follows the current file while it
/// is open. Main thread.
class QuickInfo : public QObject {
    Q_OBJECT
public:
    /// Belongs to the window. The others must outlive this object; keys that walk go to `list`.
    QuickInfo(FilelistController &files, LiveSettings &settings, QWidget &list, QWidget *window);

    void registerAt(CommandSet &commands);
    void describe(CommandState &state) const;
    void close();

    /// The panel is the window that the user types into.
    bool hasKeyboard() const;
    bool canCopy() const;
    void copy() const;

Q_SIGNALS:
    /// It was opened or closed, or something else can be copied.
    void stateDidChange();

private:
    bool isOpen() const;
    void toggle();
    void open();
    void update();

    FilelistController &_files;
    LiveSettings &_settings;
    QWidget &_list;
    QWidget *_window;
    QuickInfoPanel *_panel = nullptr; ///< made when it is opened first
};

} // namespace quorvin
