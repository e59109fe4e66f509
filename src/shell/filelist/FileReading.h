// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/WindowWorker.h"
#include "process/RootSet.h"
#include "shell/filelist/CurrentFileWait.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <unordered_set>
#include <vector>

namespace quorvin {

class LiveSettings;

/// The reading of a window's files: the pool and its counts, what is read first and once more, and how it is
/// stopped. Which files there are, and in which order, is the matter of `FilelistController`. Main thread.
class FileReading : public QObject, private DataCacherDelegate {
    Q_OBJECT
public:
    /// `settings` must outlive this object, and their values the threads of its pools.
    explicit FileReading(const LiveSettings &settings, QObject *parent = nullptr);
    /// Cancels the pool, without waiting.
    ~FileReading() override;

    WindowWorker &worker() { return _worker; }
    const WindowWorker &worker() const { return _worker; }
    CurrentFileWait &wait() { return _wait; }

    /// The files of a new list, which lie in `roots`; all others are forgotten, and there is no current file.
    /// Those that are done are not read.
    void start(const std::vector<FilelistItemPtr> &files, const QStringList &roots);
    /// More files and folders that the list was made of.
    void addRoots(const QStringList &roots) { _roots->add(roots); }
    /// More files, or some that came back: those that are not done are read.
    void add(const std::vector<FilelistItemPtr> &files);
    void remove(const std::vector<FilelistItemPtr> &files);

    /// Null: the window shows none.
    void setCurrentFile(const FilelistItemPtr &file);
    /// In front of all others.
    void readFirstly(const FilelistItemPtr &file);
    /// Drops what is known of the files and reads them, the first one first, ahead of those that wait.
    /// Several files count as processing anew; one alone does not.
    void readAgain(const std::vector<FilelistItemPtr> &files);
    /// What is read stays; the rest is unread until somebody asks for it.
    void stop();
    /// Reads those of the files that were left unread.
    void goOn(const std::vector<FilelistItemPtr> &files);
    /// Files are on their way.
    bool isUnderWay() const;

    /// Cancels the pool and waits for its threads, though not for long; nothing is told from now on.
    void setWindowIsClosing();

Q_SIGNALS:
    void fileIsReady(const quorvin::DataCacherDelivery &delivery);
    /// The rows of these files are to be drawn again.
    void filesChanged(const std::vector<quorvin::FilelistItemPtr> &files);
    /// At a rate that an eye can follow: the counts have changed.
    void progressed();

private:
    void dataCacherNewObjectReady(const DataCacherDelivery &delivery) override;
    void dataCacherDidDeliver() override;
    void startPool();
    /// Counts those that are done, and queues the others.
    void readUndone(const std::vector<FilelistItemPtr> &files);

    const LiveSettings &_settings;
    WindowWorker _worker;
    std::shared_ptr<RootSet> _roots = std::make_shared<RootSet>(); ///< of this list
    CurrentFileWait _wait;
    std::unordered_set<FilelistItemPtr> _readAgain; ///< on their way without being counted
    std::vector<FilelistItemPtr> _delivered; ///< their rows are not announced yet
    std::size_t _deliveredSinceRest = 0;
    QTimer _progressTimer;
    QTimer _restTimer;
    bool _isWindowClosing = false;
};

} // namespace quorvin
