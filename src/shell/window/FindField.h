// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/desktop/SearchField.h"

#include <QTimer>

namespace quorvin {

/// The field of the tool bar that searches all files. Stands there while it is used, or has a text and room
/// beside the tabs. Main thread.
class FindField final : public SearchField {
    Q_OBJECT
public:
    explicit FindField(QWidget *parent = nullptr);

    /// Comes up and takes the keyboard.
    void edit();
    /// What is searched, told from elsewhere.
    void setSearch(const QString &text);
    /// The end of the bar that it may take, and whether anything else stands there.
    void place(const QRect &room, bool covers);

Q_SIGNALS:
    /// After Return, or a pause; "": nothing any more.
    void searchWanted(const QString &text);
    /// The keyboard is to go to the list.
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void updateGlobalSearch();
    void comeOrGo();

    QTimer _pause;
    bool _covers = false;
};

} // namespace quorvin
