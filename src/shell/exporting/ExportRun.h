// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportEntry.h"
#include "export/QuorvinExporter.h"

#include <QFutureWatcher>
#include <QObject>
#include <QStringList>

#include <thread>
#include <vector>

namespace quorvin {

/// Writes an export on a thread of its own, one at a time. Main thread.
class ExportRun : public QObject {
    Q_OBJECT
public:
    struct Task {
        QuorvinExporter exporter;
        std::vector<ExportEntry> entries;
        QString path; ///< of the one document, or of the folder
        bool toFolder = false; ///< a document for each entry
    };

    explicit ExportRun(QObject *parent = nullptr);
    /// As `cancel`.
    ~ExportRun() override;

    /// Nothing happens while a run is under way.
    void start(Task task);
    /// Stops behind the file at hand and waits for that; nothing is told any more. Complete documents in a
    /// folder stay, no incomplete one does.
    void cancel();
    bool isUnderWay() const { return _thread.joinable(); }
    /// Files of the run.
    int count() const { return _watcher.progressMaximum(); }

Q_SIGNALS:
    void started();
    /// So many files are written.
    void progressed(int done);
    /// The reasons, each with its path, why documents could not be written; none when all went well.
    void ended(const QStringList &failures);

private:
    void finish();

    QFutureWatcher<QStringList> _watcher;
    std::jthread _thread;
};

} // namespace quorvin
