// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/Job.h"
#include "shell/desktop/BackgroundRun.h"

#include <QString>
#include <QStringList>

class QWidget;

namespace quorvin {

struct Session;

/// Takes files through the saving of what is in them, attachments or pictures: the folder, the work in a
/// guarded process, and what has come of it. What goes wrong with one file harms no other. Main thread.
class ExtractionController : public QObject {
    Q_OBJECT
public:
    using Kind = ExtractionRequest::Kind;

    /// Both must outlive this object, which belongs to the window.
    ExtractionController(Session &session, QWidget *window);

    /// Asks for a folder and saves there. Nothing that lies in it is replaced.
    void extract(const QStringList &paths, Kind kind);
    /// One without asking.
    void saveTo(const QStringList &paths, const QString &folder, Kind kind);
    /// Saves the pictures of files into a folder of this run, to look at them.
    void displayCoversFrom(const QStringList &paths);
    /// What is under way; ends with the window.
    BackgroundRunBase &run() { return _run; }
    /// What is being saved: "Saving attachments", or "Saving pictures: 2 of 5" files.
    QString progressText(int done, int total) const;

Q_SIGNALS:
    /// A sentence on how it went well; `shown` is one of the files, or "" when there are none.
    void saved(const QString &sentence, const QString &shown);
    /// These are to be shown in a window of their own; they lie in that folder.
    void temporaryFilesSaved(const QStringList &paths, const QString &folder);

private:
    using Use = std::function<void(const SavedFiles &)>;

    void start(const QStringList &paths, const QString &folder, Kind kind, Use use);
    void tell(const QStringList &paths, Kind kind, const SavedFiles &files);
    /// Whether there was something to tell.
    bool tellProblems(const QStringList &paths, Kind kind, const SavedFiles &files);

    Session &_session;
    QWidget *_window;
    Kind _kind = Kind::Attachments; ///< of the run that was started last
    BackgroundRun<SavedFiles> _run;
};

} // namespace quorvin
