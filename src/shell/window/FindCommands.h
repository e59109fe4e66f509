// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/IndexAnswer.h"

#include <QObject>

namespace quorvin {

class FilelistController;
class MainView;

/// Walks hits from one file to the next that has one, in the order of the list and behind its end from its
/// beginning. Main thread.
class FindCommands : public QObject {
    Q_OBJECT
public:
    /// Both must outlive this object.
    FindCommands(MainView &view, FilelistController &files, QObject *parent);

    /// Goes to the next file of the list whose parameters have the text of Extended, and to the first of them
    /// there; backwards to the file before and to its last one. The current file comes last.
    void goToOtherFile(bool backwards);

private:
    int nextRow(const IndexAnswer &found, bool backwards) const;
    void goTo(int row, const QString &text, bool backwards);

    MainView &_view;
    FilelistController &_files;
};

} // namespace quorvin
