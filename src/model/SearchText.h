// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace quorvin {

/// A text as searches compare it, in UTF-8: by the full case folding of Unicode, and without regard to
/// whether a letter and its marks are one code or several. Never "" for a text that is not. Any thread.
QByteArray foldedUtf8(QByteArrayView utf8);
QByteArray foldedUtf8(QStringView text);

/// Appends the folded form of valid UTF-8.
void appendFolded(QByteArray &to, QByteArrayView utf8);

/// What is looked for, folded once for many comparisons. "" is in nothing.
class SearchText {
public:
    SearchText(const QString &text) : _folded(foldedUtf8(text)) { } // NOLINT(google-explicit-constructor)

    bool isEmpty() const { return _folded.isEmpty(); }
    const QByteArray &folded() const { return _folded; }
    /// Whether it occurs in a text of valid UTF-8.
    bool isIn(QByteArrayView utf8) const;
    bool isIn(const QString &text) const;
    bool isInFolded(QByteArrayView folded) const;
    /// Whether it is the whole of a text of valid UTF-8.
    bool isAllOf(QByteArrayView utf8) const;

private:
    QByteArray _folded;
};

} // namespace quorvin
