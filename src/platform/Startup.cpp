// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Startup.h"

#include "platform/UnfinishedFiles.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace quorvin {

namespace {

/// Each is opened the wrong way round: who reads from it or writes to it is told that it is no such stream.
void occupyClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The lowest number that is free is the one that is taken.
        if (::fcntl(stream, F_GETFD) < 0)
            ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

} // namespace

void setUpProcess()
{
    occupyClosedStreams();
    UnfinishedFiles::removeOnInterrupt();
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace quorvin
