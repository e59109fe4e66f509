// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace quorvin {

/// Most bytes of a text that are shown.
inline constexpr qsizetype kMostTextBytes = 256 << 10;
/// Longer lines are broken: the toolkit takes its time over one that never ends.
inline constexpr qsizetype kMostLineCharacters = 2'000;

/// Bytes from the start of a file as text: in the encoding that their mark names, else UTF-8 if they are
/// that, else the bytes of Latin-1. `isWhole`: they go to the end of the file; else a character that is cut
/// off at their end is left out. Line ends are "\n", and what has no shape stands as U+FFFD. Any thread.
QString textOf(const QByteArray &bytes, bool isWhole);

} // namespace quorvin
