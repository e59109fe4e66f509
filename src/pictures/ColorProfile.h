// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quorvin {

/// What a colour profile is called.
struct ColorProfile {
    QString model; ///< RGB, CMYK, Gray or LAB; "" for another one
    QString name; ///< its description, in English where it has several; "" without one

    /// Absent for bytes that are no ICC profile. Any thread. By Little CMS.
    static std::optional<ColorProfile> read(const QByteArray &icc);
};

} // namespace quorvin
