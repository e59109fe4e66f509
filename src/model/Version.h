// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

/// "v1.2 (34)": version and build number.
QString programVersion();

} // namespace quorvin
