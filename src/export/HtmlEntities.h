// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLatin1String>

#include <span>

namespace quorvin {

/// What stands for a character in HTML.
struct HtmlEscape {
    char16_t unit;
    QLatin1String entity;
};

/// Both tables are sorted by code unit.

/// The special characters of HTML 4, with the apostrophe: 33 rows.
std::span<const HtmlEscape> unicodeHtmlEscapes();
/// All named characters of HTML 4, with the apostrophe: 253 rows.
std::span<const HtmlEscape> asciiHtmlEscapes();

} // namespace quorvin
