// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

namespace quorvin {

/// Gives an open file the owner, mode and extended attributes, access lists among them, of another one. What
/// the user may not hand on stays the user's own. Any thread.
void inheritRights(const QByteArray &existing, int descriptor);

} // namespace quorvin
