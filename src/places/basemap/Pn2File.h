// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/BaseMapBytes.h"

#include <tl/expected.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// The lines and areas of a PN2 file, in its order, or what is wrong with it.
tl::expected<std::vector<ArcShape>, std::string> shapesOfPn2(std::string_view bytes);

} // namespace quorvin
