// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/EndWithParent.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace quorvin {

void endWithParent(pid_t parent, int lastDescriptor)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        std::_Exit(EXIT_SUCCESS);
    std::signal(SIGINT, SIG_IGN);
    ::close_range(static_cast<unsigned>(lastDescriptor) + 1, ~0U, 0);
}

} // namespace quorvin
