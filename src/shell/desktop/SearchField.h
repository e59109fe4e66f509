// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLineEdit>

namespace quorvin {

/// A field for a text to look for, with the picture of a search before the text and a button that empties it.
/// Both are made when it is first shown: a window opens with its fields hidden. Main thread.
class SearchField : public QLineEdit {
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;

protected:
    void showEvent(QShowEvent *event) override;
};

} // namespace quorvin
