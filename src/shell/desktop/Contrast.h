// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QPalette>

namespace quorvin {

/// Text below this contrast on its ground is hard to read.
inline constexpr double kReadableContrast = 4.5;

/// How much two opaque colours differ in brightness: from 1 for none to 21 for black on white.
double contrastOf(const QColor &one, const QColor &other);

/// The colour that has gone such a share of the way, from 0 to 1.
QColor between(const QColor &from, const QColor &to, double share);

/// A text's colour drawn back towards its ground: for 0 as it is, for 1 as faint as it can still be read, and
/// between them by such a share of the way. As it is where even that can not be read.
QColor drawnBack(const QColor &text, const QColor &ground, double share);

/// The palette with the roles that the window has a use of its own for: `PlaceholderText` is that of labels
/// and of whatever stands back, readable on pages and on windows; a selection whose view lacks the keyboard
/// is grey.
QPalette withOwnRoles(QPalette palette);

} // namespace quorvin
