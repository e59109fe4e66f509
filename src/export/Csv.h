// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quorvin::Utilities {

/// The text of comma-separated fields. What a spreadsheet would run as a formula gets an apostrophe in front.

QString csvSeparator();

/// The field in quotes, its own quotes doubled, guarded by `csvEscapeFromInjectionsStrong`; "" stays "".
QString csvEscapeAndQuote(const QString &field);
/// One row, without a line feed.
QString csvEscapeAndQuoteArray(const QStringList &fields);

/// Puts an apostrophe in front of a text whose first character, blanks aside, is one of + - = @.
QString csvEscapeFromInjectionsStrong(const QString &text);
/// Puts a blank in front of a text whose very first character is one of them.
QString csvEscapeFromInjections(const QString &text);

/// The byte-order mark of UTF-8.
QByteArray UTF8BOMData();

} // namespace quorvin::Utilities
