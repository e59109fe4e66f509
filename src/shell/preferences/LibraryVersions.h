// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

namespace quorvin {

/// The versions of what files are read with. Main thread.
class LibraryVersions : public QLabel {
    Q_OBJECT
public:
    explicit LibraryVersions(QWidget *parent = nullptr);

    /// Asks for them in the background, the first time that it is called: a program among them takes a
    /// while to answer.
    void ask();

private:
    bool _wasAsked = false;
};

} // namespace quorvin
