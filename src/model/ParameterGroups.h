// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Utf8.h"
#include "model/Vocabulary.h"

#include <QByteArray>
#include <QFlags>
#include <QMultiHash>
#include <QString>

#include <optional>
#include <span>
#include <vector>

namespace quorvin {

enum class ParameterFlag : quint8 {
    None = 0,
    SkipInExtended = 1, ///< not shown in the Extended tree
    SkipInExport = 2, ///< not in the key list for exports
    SkipInComparison = 4, ///< not in the comparison table
    IsPrivateInfo = 8, ///< a fact about the user's file rather than the media
    IsPrivateInTreeOnly = 16, ///< private, but the key list for exports keeps it whatever is asked for
};
Q_DECLARE_FLAGS(ParameterFlags, ParameterFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(ParameterFlags)

/// The parameters of one file, each stored once: an ordered list of groups, each an ordered list of streams,
/// each an ordered list of parameters. All values lie in one buffer, so that a parameter costs 32 bytes and
/// its text; equal long values lie there once.
///
/// Filled front to back through the `begin…`, `add` and `end…` operations by one thread; read only
/// afterwards.
class ParameterGroups {
public:
    struct Parameter {
        TermPtr term; ///< never null
        quint32 offset = 0; ///< of the value, in bytes of UTF-8
        quint32 length = 0;
        ParameterFlags flags;
        quint16 subgroup = 0; ///< place in the group's subgroups, counted from 1; 0 when it is in none
    };

    struct Stream {
        quint32 number = 0; ///< counted from 1 within its kind; 0 in a group that is no stream of a kind
        quint32 first = 0; ///< index of the first parameter
        quint32 count = 0;

        bool operator==(const Stream &) const = default;
    };

    struct Group {
        QString key; ///< also the name
        bool numbered = false; ///< the kind has several streams, so each bears its number
        std::vector<QString> subgroups; ///< groups within the group; in one named "" they stand in the open
        std::vector<Stream> streams;

        /// The name of the group within the group that a parameter stands in, "" in none.
        QString subgroupOf(const Parameter &parameter) const
        {
            return parameter.subgroup == 0 ? QString() : subgroups[parameter.subgroup - 1U];
        }
        /// The name of a stream of this group in the Extended tree, such as "Audio #2".
        QString nameOf(const Stream &stream) const;
        bool operator==(const Group &) const = default;
    };

    /// Opens a group; the streams that follow belong to it. `numbered` as in `Group`.
    void beginGroup(const QString &key, bool numbered = false);
    /// Opens the next stream of the open group.
    void beginStream(int number);
    /// Adds a subgroup to the open group and gives its place. Two may have the same name. Beyond 65,535 the
    /// parameters stand in none.
    quint16 addSubgroup(const QString &name);
    /// Appends a parameter to the open stream. A repeated key is kept: lists have it twice, look-ups give the
    /// last. A value that would take the record past 4 GiB of text is cut to nothing.
    void add(TermPtr term, QStringView value, ParameterFlags flags = {}, quint16 subgroup = 0);
    /// The same for a value that is UTF-8 already. What is not valid in it becomes U+FFFD.
    void addUtf8(TermPtr term, QByteArrayView value, ParameterFlags flags = {}, quint16 subgroup = 0);
    /// The text in which the slices of `addSlice` lie. False for what is not valid UTF-8, and nothing is
    /// taken then. Once, before the first parameter.
    bool setText(QByteArrayView text);
    /// Appends a parameter whose value is a slice of the text, in bytes. False for what does not lie in it,
    /// or cuts a character; nothing is added then.
    bool addSlice(TermPtr term, quint32 offset, quint32 length, ParameterFlags flags, quint16 subgroup);
    /// Drops the open stream if it has got no parameter.
    void endStreamUnlessEmpty();
    /// Gives back spare memory; call once when the last group is complete.
    void squeeze();

    const std::vector<Group> &groups() const { return _groups; }
    std::span<const Parameter> parameters(const Stream &stream) const;
    /// All values, of which parameters name slices.
    const QByteArray &text() const { return _text; }
    /// What the values come to in bytes, those that lie in one place counted each time.
    qint64 lengthOfValues() const;
    /// Those of the Extended tree in the order in which it shows them: subgroup by subgroup.
    std::vector<const Parameter *> shownParameters(const Stream &stream) const;
    /// Calls `visit(group, parameter)` for those of the Extended tree, in the order of the record, until it
    /// gives false; so does this then.
    template <typename Visit>
    bool visitShown(Visit visit) const
    {
        for (const Group &group : _groups) {
            for (const Stream &stream : group.streams) {
                for (const Parameter &parameter : parameters(stream)) {
                    if (!parameter.flags.testFlag(ParameterFlag::SkipInExtended) && !visit(group, parameter))
                        return false;
                }
            }
        }
        return true;
    }
    QString value(const Parameter &parameter) const { return textOfUtf8(utf8Value(parameter)); }
    /// Valid UTF-8. The view lasts as long as this object.
    QByteArrayView utf8Value(const Parameter &parameter) const;

    /// The group of that key, or null.
    const Group *group(QStringView key) const;
    /// The value of the last parameter of that key in the stream; absent when there is none.
    std::optional<QString> lookUp(const Stream &stream, QStringView key) const;

    /// Equal in keys, labels, values, flags, subgroups and order.
    bool operator==(const ParameterGroups &other) const;

private:
    void append(TermPtr term, QByteArrayView value, ParameterFlags flags, quint16 subgroup);

    std::optional<quint32> placeOfEqual(QByteArrayView value);

    std::vector<Group> _groups;
    std::vector<Parameter> _parameters;
    QByteArray _text;
    QMultiHash<std::size_t, quint32>
        _longValues; ///< by their hash, the parameters that have them; while filled
};

} // namespace quorvin
