// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/Job.h"
#include "shell/desktop/BackgroundRun.h"

#include <QString>

class QWidget;

namespace quorvin {

class LiveSettings;

/// Takes a file through the saving of what is attached to it: the folder, the work in a guarded process, and
/// what has come of it. Main thread.
class AttachmentController : public QObject {
    Q_OBJECT
public:
    /// Both must outlive this object, which belongs to the window.
    AttachmentController(LiveSettings &settings, QWidget *window);

    /// Asks for a folder and saves there. Nothing that lies in it is replaced.
    void extractAttachments(const QString &path);
    /// One without asking.
    void saveTo(const QString &path, const QString &folder);
    /// What is under way; ends with the window.
    BackgroundRunBase &run() { return _run; }

Q_SIGNALS:
    /// A sentence on how it went well; `shown` is one of the files, or "" when there are none.
    void saved(const QString &sentence, const QString &shown);

private:
    void tell(const QString &path, const Expected<SavedFiles> &files);

    LiveSettings &_settings;
    QWidget *_window;
    BackgroundRun<Expected<SavedFiles>> _run;
};

} // namespace quorvin
