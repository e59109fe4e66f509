// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/JobCounter.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace quorvin {

static_assert(std::atomic<quint32>::is_always_lock_free);

JobCounter::JobCounter() : _descriptor(::memfd_create("quorvin-reader", MFD_CLOEXEC | MFD_ALLOW_SEALING))
{
    // Sealed, since a reader that made it shorter would take its parent down.
    if (::ftruncate(_descriptor, sizeof *_taken) == 0
        && ::fcntl(_descriptor, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) == 0)
        map();
}

JobCounter::JobCounter(int descriptor) : _descriptor(descriptor)
{
    map();
}

JobCounter::~JobCounter()
{
    if (_taken)
        ::munmap(_taken, sizeof *_taken);
    if (_descriptor >= 0)
        ::close(_descriptor);
}

void JobCounter::map()
{
    // Fresh memory is zero, which is what a counter starts with.
    void *memory = ::mmap(nullptr, sizeof *_taken, PROT_READ | PROT_WRITE, MAP_SHARED, _descriptor, 0);
    _taken = memory == MAP_FAILED ? nullptr : static_cast<std::atomic<quint32> *>(memory);
}

void JobCounter::take()
{
    if (_taken)
        _taken->fetch_add(1);
}

bool JobCounter::hasTaken(quint32 jobs) const
{
    return !_taken || _taken->load() >= jobs;
}

} // namespace quorvin
