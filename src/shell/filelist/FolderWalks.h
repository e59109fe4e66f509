// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistFiller.h"
#include "shell/desktop/BackgroundRun.h"

#include <QObject>
#include <QStringList>

#include <deque>
#include <vector>

namespace quorvin {

/// Walks folders for a window, one request after the other, each on a thread of its own. Main thread.
class FolderWalks : public QObject {
    Q_OBJECT
public:
    /// What is to become of the files.
    struct Request {
        static constexpr int kReplace = -3; ///< they become the list
        static constexpr int kEndAndSelect = -2;
        static constexpr int kEnd = -1;

        QStringList paths;
        int index = kEnd; ///< one of the above, or the place in the list
    };

    using QObject::QObject;

    /// One that replaces the list makes those before it needless. A project alone is not walked:
    /// `projectWanted` tells of it.
    void start(const Request &request);
    /// Ends all; nothing is delivered.
    void cancel();
    bool isUnderWay() const { return !_requests.empty(); }
    /// The walk that is under way; it reports the number of files found so far.
    BackgroundRunBase &run() { return _run; }

Q_SIGNALS:
    /// That project is to be opened. `replaces`: in place of the list.
    void projectWanted(const QString &path, bool replaces);
    /// The files of one request, whole and sorted.
    void found(const quorvin::FolderWalks::Request &request,
               const std::vector<quorvin::FilelistItemPtr> &files);
    /// After that: how many files were found, and which folders could not be listed.
    void walked(const QStringList &paths, std::size_t files,
                const std::vector<quorvin::FilelistFiller::Problem> &problems);

private:
    void walkNext();
    void finish(const FilelistFiller &result);

    std::deque<Request> _requests; ///< the first is under way
    BackgroundRun<FilelistFiller> _run;
};

} // namespace quorvin
