// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/desktop/TownLookup.h"

#include <QObject>

namespace quorvin {

class FilelistController;
class StatusLine;

/// Tells in the status line where the current file was recorded, while it is the only one that is selected.
/// Main thread.
class PlaceNote final : public QObject {
    Q_OBJECT
public:
    /// Both must outlive it.
    PlaceNote(FilelistController &files, StatusLine &status, QObject *parent);

private:
    void update();

    FilelistController &_files;
    StatusLine &_status;
    TownLookup _towns;
};

} // namespace quorvin
