// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <functional>

namespace quorvin {

class FilelistController;
class StatusLine;

/// Says once in a window that files are to be read with exiftool, and that it is not installed: a list of
/// films has a thousand files that fail for that one reason. Main thread.
class ExifToolNotice final : public QObject {
    Q_OBJECT
public:
    /// Files and line must outlive this object.
    ExifToolNotice(FilelistController &files, StatusLine &line, std::function<void()> openPreferences,
                   QObject *parent);

private:
    void look();

    FilelistController &_files;
    StatusLine &_line;
    std::function<void()> _openPreferences;
    qint64 _failed = 0; ///< so many were there when it looked last
};

} // namespace quorvin
