// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/HtmlEntities.h"

#include <QString>

#include <span>

namespace quorvin {

/// Text for HTML and XML.

/// With true what `gtm_stringByEscapingForHTML` gives, else `gtm_stringByEscapingForAsciiHTML`.
QString stringByEncodingHTMLEntities(const QString &text, bool isUnicode);

/// Escapes quotes, ampersand, angle brackets and the special characters of HTML 4; all else stays as it is.
QString gtm_stringByEscapingForHTML(const QString &text);
/// Escapes all that has a name in HTML 4, and what else is not ASCII by its number: the result is ASCII. A
/// character beyond the basic plane gives two numbers, one for each surrogate.
QString gtm_stringByEscapingForAsciiHTML(const QString &text);
/// The table is sorted by code unit. With `escapingUnicode` what is neither in it nor ASCII becomes a number.
QString gtm_stringByEscapingHTMLUsingTable(const QString &text, std::span<const HtmlEscape> table,
                                           bool escapingUnicode);

/// Each line break becomes "<br />"; CR LF counts as one where it does not follow another line break.
QString stringWithNewLinesAsBRs(const QString &text);

} // namespace quorvin
