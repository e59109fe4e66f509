// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"

#include <QObject>

namespace quorvin {

class CommandSet;
class FilelistController;
class FilterPopover;
class FindField;
class LiveSettings;
class MainView;
struct CommandState;

/// What a user does to narrow the list: the search of all files, names, and files that are not known.
/// Main thread.
class FilterCommands : public QObject {
    Q_OBJECT
public:
    /// All must outlive this object.
    FilterCommands(LiveSettings &settings, MainView &view, FilelistController &files, QObject *parent);

    void registerAt(CommandSet &commands);
    /// The field of the tool bar, which searches all files.
    void follow(FindField &field);
    /// Adds what narrows the list.
    void describe(CommandState &state) const;

private:
    void toggleHideUnknownFiles();
    void updateGlobalSearch(const QString &text);
    /// The rule takes the place of the one that was there. The tree's selected row is a parameter.
    void showOnlyWithValue();
    void showOnlyWithoutParameter();
    void setRule(const Rule &rule);

    LiveSettings &_settings;
    MainView &_view;
    FilelistController &_files;
    FilterPopover *_popover;
    FindField *_field = nullptr;
};

} // namespace quorvin
