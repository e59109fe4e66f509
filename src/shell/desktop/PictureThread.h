// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QObject>

#include <functional>

namespace quorvin {

/// Runs `make` on a thread that decodes pictures, newest request first, and then `use` with what it gave, on
/// the calling thread, unless `context` is gone by then.
void decodeElsewhere(QObject *context, std::function<QImage()> make, std::function<void(const QImage &)> use);

} // namespace quorvin
