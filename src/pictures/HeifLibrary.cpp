// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/HeifLibrary.h"

namespace quorvin {

const HeifLibrary &HeifLibrary::instance()
{
    static const HeifLibrary library;
    return library;
}

} // namespace quorvin
