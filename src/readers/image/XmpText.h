// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

/// An XMP packet laid out to be read: its opening line, its one element with a line for each element in it,
/// indented, and its closing line; names and values stay as they are. What is no such packet, or nests deeper
/// than any known one, comes back as it is. Any thread.
QString arrangedXmp(const QString &packet);

} // namespace quorvin
