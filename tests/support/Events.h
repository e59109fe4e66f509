// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

namespace quorvin::test {

/// Lets events run until it holds; false when it never does.
bool spinUntil(const std::function<bool()> &holds);

} // namespace quorvin::test
