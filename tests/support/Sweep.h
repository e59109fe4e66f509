// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

namespace quorvin::test {

/// The step of a test that goes through very many cases of one kind: all of them where the address sanitizer
/// watches, since that is where they find something, and elsewhere one of so many.
constexpr qsizetype stepOfSweep([[maybe_unused]] qsizetype elsewhere)
{
#ifdef __SANITIZE_ADDRESS__
    return 1;
#else
    return elsewhere;
#endif
}

} // namespace quorvin::test
