// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/JobCounter.h"

#include <QtGlobal>

#include <sys/types.h>

#include <memory>
#include <string>

namespace quorvin {

/// How far a reader may go.
struct ReaderLimits {
    int cpuSeconds = 20; ///< of processor time for one job
    int wallSeconds = 60; ///< from the start of one job to its end
    int memoryMiB = 2048; ///< of address space
    std::string program; ///< path; "" is the reader beside this program
};

/// A running reader and this end of its socket. The process goes with the object: it is killed, if it still
/// runs, and waited for. It also ends with the thread that started it.
class ReaderProcess {
public:
    /// Null when the program can't be started. It lies beside this program.
    static std::unique_ptr<ReaderProcess> start(const ReaderLimits &limits);

    ReaderProcess(const ReaderProcess &) = delete;
    ReaderProcess &operator=(const ReaderProcess &) = delete;
    ~ReaderProcess();

    int socket() const { return _socket; }
    pid_t pid() const { return _pid; }
    /// To be told of every job that is sent.
    void countJob() { ++_jobs; }
    /// Whether the reader has begun with the last job that was sent.
    bool hasTakenLastJob() const { return _counter->hasTaken(_jobs); }
    /// Processor time used so far, in milliseconds.
    qint64 cpuTime() const;
    /// Ends the process and tells how it ended: its status as `waitpid` gives it.
    int kill();

private:
    ReaderProcess(pid_t pid, int socket, std::unique_ptr<JobCounter> counter);

    pid_t _pid;
    int _socket;
    std::unique_ptr<JobCounter> _counter;
    quint32 _jobs = 0;
};

} // namespace quorvin
