// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "SBJson5/SBJson5StreamWriterState.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

namespace quorvin {

class SBJson5StreamWriterDelegate;

/// Less than zero, zero or more than zero, as the first key stands before, with or after the second.
using SBJson5KeysComparator = std::function<int(const QString &, const QString &)>;

struct SBJson5WriterOptions {
    quint64 maxDepth = 32; ///< most containers within each other; 0 for no limit
    bool humanReadable = false; ///< a line for each value, indented by two blanks a level
    bool sortKeys = false; ///< maps by their keys' code units; without it in their own order
    SBJson5KeysComparator sortKeysComparator = {}; ///< in place of that order, when set
};

/// Writes JSON as it is told, as UTF-8 without a line feed at the end. Memory does not grow with the
/// document.
///
/// Each operation is true when it could write; otherwise `error` tells why, and what was written so far is of
/// no use. After the outermost value every further write fails. One thread an object.
class SBJson5StreamWriter {
public:
    /// The delegate must outlive the writer.
    SBJson5StreamWriter(SBJson5StreamWriterDelegate &delegate, SBJson5WriterOptions options);

    /// A map (`SBJson5Object`, QVariantMap or QVariantHash), a list, a string, a number, a boolean, null (an
    /// invalid variant) or an `SBJson5ProxyPtr`.
    bool writeValue(const QVariant &value);
    bool writeObject(const QVariant &map);
    bool writeArray(const QVariantList &list);
    /// A string where a map expects a key is that key. A lone surrogate becomes a question mark.
    bool writeString(const QString &text);
    /// The same for text that is valid UTF-8 already, and not likely to come again.
    bool writeUtf8String(QByteArrayView text);
    /// An integer keeps its digits, a real has up to 17; a boolean counts as a number too.
    bool writeNumber(const QVariant &number);
    bool writeBool(bool value);
    bool writeNull();
    bool writeObjectOpen();
    bool writeObjectClose();
    bool writeArrayOpen();
    bool writeArrayClose();

    /// The last failure, "" while there is none.
    const QString &error() const { return _error; }

private:
    using State = SBJson5StreamWriterState;

    bool fail(const QString &reason);
    bool isInvalidState();
    bool expectingKey();
    void appendSeparator(bool andWhitespace);
    QByteArrayView lineStart();
    void appendBytes(QByteArrayView bytes);
    void transitionState();
    bool open(char bracket, State inside);
    bool close(char bracket);
    void beginScalar();
    bool writeScalar(QByteArrayView text);
    bool writeReal(double number);

    SBJson5StreamWriterDelegate &_delegate;
    SBJson5WriterOptions _options;
    QString _error;
    State _state = State::Start;
    std::vector<State> _stateStack;
    struct Cached {
        QString text;
        QByteArray json;
    };
    QHash<const QChar *, Cached> _cache; ///< by where the text lies, up to `kMaxCachedStrings`
    QByteArray _quoted; ///< the string at hand, finished
    QByteArray _lineStart = QByteArrayLiteral(",\n"); ///< and the deepest indentation so far
};

/// Keys repeat, and their escaping is spared; so many strings, none longer than `kMaxCachedLength`, are
/// enough for them and bound the memory.
inline constexpr qsizetype kMaxCachedStrings = 8192;
inline constexpr qsizetype kMaxCachedLength = 128;

} // namespace quorvin
