// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/Reaper.h"

#include "model/Log.h"

#include <poll.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace quorvin {

namespace {

constexpr int kReapPatience = 1000; ///< milliseconds
constexpr std::chrono::seconds kBetweenLooks{1};

/// Children that would not end. The thread lives as long as there are any.
class Reaper {
public:
    void leave(pid_t pid)
    {
        const std::lock_guard guard(_lock);
        _children.push_back(pid);
        if (_isRunning)
            return;
        try {
            std::thread([this] { run(); }).detach();
            _isRunning = true;
        } catch (const std::system_error &error) {
            qCInfo(lcQuorvin) << "Failed to start a thread:" << error.what();
        }
    }

private:
    bool hasChildren()
    {
        const std::lock_guard guard(_lock);
        std::erase_if(_children, [](pid_t pid) { return ::waitpid(pid, nullptr, WNOHANG) != 0; });
        _isRunning = !_children.empty();
        return _isRunning;
    }
    void run()
    {
        while (hasChildren())
            std::this_thread::sleep_for(kBetweenLooks);
    }

    std::mutex _lock;
    std::vector<pid_t> _children;
    bool _isRunning = false;
};

/// Never destroyed: its thread may outlive all else.
Reaper &reaper()
{
    static auto &only = *new Reaper;
    return only;
}

} // namespace

std::optional<int> endChild(pid_t pid, int handle)
{
    ::kill(pid, SIGKILL);
    pollfd end{handle, POLLIN, 0};
    ::poll(&end, 1, kReapPatience);
    int status = 0;
    if (::waitpid(pid, &status, WNOHANG) == pid)
        return status;
    qCInfo(lcQuorvin) << "Reader" << pid << "does not end";
    reaper().leave(pid);
    return std::nullopt;
}

} // namespace quorvin
