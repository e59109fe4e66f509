// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace quorvin {

class FilelistController;
class LiveSettings;
class MainView;
class RuleEditor;

/// The editor of the rule that narrows the list, over the inside of the window. What is edited takes effect
/// at once. Main thread.
class FilterPopover : public QObject {
    Q_OBJECT
public:
    /// All must outlive this object.
    FilterPopover(LiveSettings &settings, MainView &view, FilelistController &files, QObject *parent);

    void toggle();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    RuleEditor *makeEditor();
    void place();
    void close();
    void showMatches();

    LiveSettings &_settings;
    MainView &_view;
    FilelistController &_files;
    RuleEditor *_editor = nullptr; ///< made when it is first wanted
};

} // namespace quorvin
