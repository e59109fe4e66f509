// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#include <atomic>

namespace quorvin {

/// How many jobs a reader has taken, in memory that it shares with its parent. So the parent knows of a job
/// whose reader is lost whether it was ever looked at. A reader may write anything there; nothing but that
/// question hangs on it.
class JobCounter {
public:
    JobCounter();
    /// The counter behind a descriptor that a reader was given.
    explicit JobCounter(int descriptor);
    ~JobCounter();
    JobCounter(const JobCounter &) = delete;
    JobCounter &operator=(const JobCounter &) = delete;

    /// For the reader to inherit; closes itself on exec.
    int descriptor() const { return _descriptor; }
    void take();
    bool hasTaken(quint32 jobs) const;

private:
    void map();

    int _descriptor = -1;
    std::atomic<quint32> *_taken = nullptr;
};

} // namespace quorvin
