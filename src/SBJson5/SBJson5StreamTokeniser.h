// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace quorvin {

enum class SBJson5Token : signed char {
    Error = -1,
    EndOfData = 0, ///< no complete token yet
    ArrayOpen = 1,
    ArrayClose = 2,
    ValueSeparator = 3,
    ObjectOpen = 4,
    ObjectClose = 5,
    KeySeparator = 6,
    Boolean = 7,
    Null = 8,
    Integer = 9, ///< a number with neither fraction nor exponent
    Real = 10,
    String = 11, ///< without escapes
    EncodedString = 12, ///< with at least one
};

/// Cuts bytes into the tokens of JSON. Strings come out checked: valid UTF-8, with escapes that stand for
/// characters. Input may arrive in pieces, cut anywhere: the tokens and the errors are the same. No comments,
/// no byte-order mark. One thread an object.
class SBJson5StreamTokeniser {
public:
    void appendData(QByteArrayView bytes);

    /// The next token. `token` becomes its bytes, of a string those between the quotes; they last until the
    /// next `appendData`. A number is complete when a byte follows it. After an error there is no next token.
    SBJson5Token getToken(QByteArrayView &token);

    /// What the error was, with its position in the whole input: "… at index N", counted from 0 in bytes.
    const QString &error() const { return _error; }

private:
    SBJson5Token fail(qsizetype at, const QString &reason);
    SBJson5Token single(SBJson5Token kind, QByteArrayView &token);
    SBJson5Token keyword(QByteArrayView word, SBJson5Token kind, QByteArrayView &token);
    SBJson5Token string(QByteArrayView &token);
    SBJson5Token number(QByteArrayView &token);

    qsizetype stepInString(qsizetype at);
    qsizetype escape(qsizetype at);
    qsizetype lowSurrogate(qsizetype at);
    qsizetype character(qsizetype at);
    qsizetype refuse(qsizetype at, const QString &reason);
    qsizetype digits(qsizetype at) const;

    quint8 byteAt(qsizetype at) const { return static_cast<quint8>(_data.at(at)); }

    QByteArray _data;
    qsizetype _index = 0; ///< of the next token
    quint64 _offset = 0; ///< bytes dropped from the front
    QString _error;
    qsizetype _scanned = 0; ///< how far an unfinished string is known to be right
    bool _hasEscape = false; ///< that string
};

} // namespace quorvin
