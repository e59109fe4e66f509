// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>
#include <QLineEdit>

namespace quorvin {

/// A field for a text to look for, with a picture before the text and a button that empties it. Both are made
/// when it is first shown: a window opens with its fields hidden. Main thread.
class SearchField : public QLineEdit {
    Q_OBJECT
public:
    /// Null: the desktop's picture of a search.
    explicit SearchField(QWidget *parent = nullptr, QIcon picture = {});

protected:
    void showEvent(QShowEvent *event) override;

private:
    QIcon _picture;
};

} // namespace quorvin
