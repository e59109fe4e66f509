// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "process/JobCounter.h"

#include <QtGlobal>

#include <sys/types.h>

#include <ctime>
#include <memory>
#include <optional>
#include <string>

namespace quorvin {

/// A running reader and this end of its socket. The process goes with the object: it is killed, if it still
/// runs, and waited for, a second at most. It also ends with the thread that started it.
class ReaderProcess {
public:
    /// `program` is a path; "" is the reader beside this program, and none when its place is not known.
    static Expected<std::unique_ptr<ReaderProcess>> start(const std::string &program);

    ReaderProcess(const ReaderProcess &) = delete;
    ReaderProcess &operator=(const ReaderProcess &) = delete;
    ~ReaderProcess();

    int socket() const { return _socket; }
    /// Whether the reader has begun with so many jobs.
    bool hasTaken(quint32 jobs) const { return _counter->hasTaken(jobs); }
    /// Processor time used so far, in milliseconds; with that of its companion.
    qint64 cpuTime() const;
    /// A process that works for the reader, and ends with it.
    void setCompanion(pid_t pid);
    /// Limits the memory that the process may take from now on. Files that it maps do not count: they are
    /// as large as they like, and their pages are the system's to drop. It can't lift the limit itself.
    void limitMemory(int mebibytes);
    /// Ends the process and tells how it ended: its status as `waitpid` gives it; absent when it does not
    /// end.
    std::optional<int> kill();

private:
    ReaderProcess(pid_t pid, int socket, std::unique_ptr<JobCounter> counter);

    pid_t _pid;
    std::optional<clockid_t> _clock; ///< of its processor time
    std::optional<clockid_t> _clockOfCompanion;
    int _handle; ///< a descriptor of the process
    int _socket;
    int _memoryMiB = 0; ///< the limit that is set; 0 for none
    std::unique_ptr<JobCounter> _counter;
};

} // namespace quorvin
