// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <string>

namespace quorvin {

/// The path of the program that guarded processes run, which lies beside this one; none when its place is not
/// known.
Expected<std::string> readerProgram();

} // namespace quorvin
