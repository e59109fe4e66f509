// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/WindowPlace.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr QPoint kCascade(28, 28);

} // namespace

QRect frameWithin(const QRect &frame, const QRect &room)
{
    const QSize size = frame.size().boundedTo(room.size());
    const QPoint least = room.topLeft();
    const QPoint most(room.right() + 1 - size.width(), room.bottom() + 1 - size.height());
    return {QPoint(std::clamp(frame.x(), least.x(), most.x()), std::clamp(frame.y(), least.y(), most.y())),
            size};
}

QRect frameBeside(const QRect &before, const QSize &size, const QRect &room)
{
    const QRect frame(before.topLeft() + kCascade, size);
    return frameWithin(room.contains(frame) ? frame : QRect(room.topLeft(), size), room);
}

} // namespace quorvin
