// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArray>
#include <QString>

namespace quorvin {

/// What a colour profile is called.
struct ColorProfile {
    QString model; ///< RGB, CMYK, Gray or LAB; "" for another one
    QString name; ///< its description, in English where it has several; "" without one

    /// Fails for bytes that are no ICC profile. Any thread.
    static Expected<ColorProfile> read(const QByteArray &icc);
};

} // namespace quorvin
