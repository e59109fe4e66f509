// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/NoNetwork.h"

#include <seccomp.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace quorvin {

bool shutOffNetwork()
{
    constexpr std::array kAllowedFamilies{AF_UNIX, AF_NETLINK};
    scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
    if (!filter)
        return false;
    bool ok = seccomp_attr_set(filter, SCMP_FLTATR_CTL_TSYNC, 1) == 0;
    // A rule knows one value of an argument: so each family has its own, and what lies above all known ones
    // has another.
    for (int family = 0; family < AF_MAX; ++family) {
        if (std::ranges::find(kAllowedFamilies, family) == kAllowedFamilies.end())
            ok = ok
                && seccomp_rule_add(filter, SCMP_ACT_ERRNO(EACCES), SCMP_SYS(socket), 1,
                                    SCMP_A0(SCMP_CMP_EQ, static_cast<scmp_datum_t>(family)))
                    == 0;
    }
    ok = ok
        && seccomp_rule_add(filter, SCMP_ACT_ERRNO(EACCES), SCMP_SYS(socket), 1,
                            SCMP_A0(SCMP_CMP_GE, static_cast<scmp_datum_t>(AF_MAX)))
            == 0;
    // It would go past the filter.
    ok = ok && seccomp_rule_add(filter, SCMP_ACT_ERRNO(EPERM), SCMP_SYS(io_uring_setup), 0) == 0;
    ok = ok && seccomp_load(filter) == 0;
    seccomp_release(filter);
    return ok;
}

} // namespace quorvin
