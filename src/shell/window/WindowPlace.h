// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRect>

namespace quorvin {

/// Where windows go; rectangles are frames with their decoration, in device-independent pixels.

/// The frame moved, and made smaller where it must be, so that all of it lies in the room.
QRect frameWithin(const QRect &frame, const QRect &room);

/// A place for a further window that does not hide the one before; at the start of the room when it would
/// not fit beside it.
QRect frameBeside(const QRect &before, const QSize &size, const QRect &room);

} // namespace quorvin
