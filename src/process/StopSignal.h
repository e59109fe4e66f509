// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>

namespace quorvin {

/// A descriptor that becomes readable when it is raised, for those who wait for others too. Any thread raises
/// it; the one that waits clears it.
class StopSignal {
public:
    StopSignal() : _descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) { }
    ~StopSignal() { ::close(_descriptor); }
    StopSignal(const StopSignal &) = delete;
    StopSignal &operator=(const StopSignal &) = delete;

    int descriptor() const { return _descriptor; }
    void raise()
    {
        _isRaised = true;
        ::eventfd_write(_descriptor, 1);
    }
    /// From a stop that came too late for the last wait.
    void clear()
    {
        eventfd_t raised = 0;
        if (_isRaised.exchange(false))
            ::eventfd_read(_descriptor, &raised);
    }

private:
    int _descriptor;
    std::atomic<bool> _isRaised = false;
};

} // namespace quorvin
