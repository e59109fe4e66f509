// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/ExifToolNotice.h"

#include "model/FailureKind.h"
#include "process/ExifToolStart.h"
#include "shell/filelist/FilelistController.h"
#include "shell/window/StatusLine.h"

#include <algorithm>
#include <utility>

namespace quorvin {

ExifToolNotice::ExifToolNotice(FilelistController &files, StatusLine &line,
                               std::function<void()> openPreferences, QObject *parent)
    : QObject(parent), _files(files), _line(line), _openPreferences(std::move(openPreferences))
{
    connect(&files, &FilelistController::totalsDidChange, this, &ExifToolNotice::look);
}

void ExifToolNotice::look()
{
    const qint64 failed = _files.worker().countFailed();
    // Where exiftool is there no file needs to be asked.
    if (std::exchange(_failed, failed) >= failed || !exifToolProgram().empty())
        return;
    const auto wantedIt = [](const FilelistItemPtr &file) {
        return kindOf(file->error().value_or(Error())) == FailureKind::NoExifTool;
    };
    if (std::ranges::none_of(_files.filelist(), wantedIt))
        return;
    disconnect(&_files, nullptr, this, nullptr);
    _line.say(tr("Only images can be read: exiftool is not installed."), tr("Preferences…"),
              _openPreferences);
}

} // namespace quorvin
