// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QWidget;

namespace quorvin {

/// Keeps the keyboard where the user left it. While the list is hidden the pane beside it stands in, and the
/// list gets the keyboard back with its return unless the user has moved it. Arrow keys on a button never
/// lead out of its pane. Main thread.
class FocusKeeper : public QObject {
    Q_OBJECT
public:
    /// Belongs to `content`, which must not outlive `list`.
    FocusKeeper(QWidget *list, QWidget *content);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The list may be hidden already where the keyboard was meant for it.
    void windowDidShow();
    void focusDidChange(QWidget *old, QWidget *now);
    /// Where the keyboard was last in the content; else the first widget there that takes it, buttons and
    /// covers last.
    QWidget *placeInContent() const;

    QWidget *_list;
    QWidget *_content;
    bool _isOwed = false; ///< the list lost the keyboard by being hidden
};

} // namespace quorvin
