// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <unicode/locid.h>

namespace quorvin {

/// The locale that the environment names for string order (LC_ALL, LC_COLLATE, LANG). It need not be
/// installed on the system. "C" and "POSIX" give the root locale: order without a language.
icu::Locale collationLocale();

/// The same for dates (LC_ALL, LC_TIME, LANG). "C" and "POSIX" give American English.
icu::Locale dateLocale();

/// Makes the character type of this process UTF-8 and its number format "C", whatever the environment says:
/// the format libraries convert paths by the first and write numbers by the second. Call once, before any
/// thread.
void useUtf8CharacterType();

} // namespace quorvin
