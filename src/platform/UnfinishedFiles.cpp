// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/UnfinishedFiles.h"

#include <unistd.h>

#include <array>
#include <atomic>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>

namespace quorvin::UnfinishedFiles {

namespace {

enum State : int { Free, Claimed, Listed };

/// Never freed, so that the handler may read a slot at any moment.
struct Slot {
    std::atomic<int> state = Free;
    std::array<char, PATH_MAX> path{};
};

std::array<Slot, kSlots> slots;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void removeFiles()
{
    for (const auto remove : {::unlink, ::rmdir}) {
        for (const Slot &slot : slots) {
            if (slot.state.load() == Listed)
                remove(slot.path.data());
        }
    }
}

extern "C" void removeFilesAndEnd(int signal)
{
    removeFiles();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

int add(const QByteArray &path)
{
    if (path.size() >= PATH_MAX)
        return -1;
    for (int i = 0; i < kSlots; ++i) {
        Slot &slot = slots[static_cast<std::size_t>(i)];
        int expected = Free;
        if (slot.state.compare_exchange_strong(expected, Claimed)) {
            std::memcpy(slot.path.data(), path.constData(), static_cast<std::size_t>(path.size()) + 1);
            slot.state = Listed;
            return i;
        }
    }
    return -1;
}

void remove(int slot)
{
    if (slot >= 0)
        slots[static_cast<std::size_t>(slot)].state = Free;
}

void removeOnInterrupt()
{
    // The toolkit ends the program so when it loses its display, as at the end of a desktop session.
    std::atexit(removeFiles);
    struct sigaction action { };
    action.sa_handler = removeFilesAndEnd;
    sigemptyset(&action.sa_mask);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE, SIGXCPU}) {
        // Who started us may have chosen to ignore one (nohup); that choice stays.
        struct sigaction before { };
        if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            sigaction(signal, &action, nullptr);
    }
}

} // namespace quorvin::UnfinishedFiles
