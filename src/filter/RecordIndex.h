// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Slots.h"
#include "filter/ValueTable.h"
#include "intake/FilelistItem.h"
#include "model/QuorvinData.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace quorvin {

/// What the Extended trees of many files show, made for questions that go over all of them: each record is a
/// slice of two columns, the term of each parameter and the number of its value. One thread.
class RecordIndex {
public:
    /// What a parameter is called, and where it stands.
    struct Name {
        QString group;
        QString subgroup; ///< "" in none
        TermPtr term;
    };

    struct Entry {
        FilelistItemPtr file; ///< null: the record is dead
        quint32 block = 0;
        quint32 first = 0;
        quint32 count = 0;
        qint8 fileType = kFailed; ///< place in `kFileTypes`
        bool isIndexed = true; ///< else the record has no place in the columns, and is walked instead
        qint64 duration = 0; ///< of the record, in milliseconds
        qint64 bytes = 0; ///< of the file
    };
    static constexpr qint8 kFailed = -1; ///< the file could not be read

    /// Takes in what an analysis of the file gave, in the place of what it gave before; no record: it failed.
    void put(const FilelistItemPtr &file, const QuorvinDataPtr &record);
    void remove(const FilelistItemPtr &file);
    /// Drops the dead records and what only they had, once their parameters are more than those of the
    /// living, and not fewer than `least`. Numbers of all kinds change then, and with them the generation.
    void compact(std::size_t least = kLeastDead);
    static constexpr std::size_t kLeastDead = 1 << 18; ///< fewer are not worth the time
    quint64 generation() const { return _generation; }

    /// In the order in which they came, the dead ones among them.
    std::span<const Entry> entries() const { return _entries; }
    std::optional<std::size_t> entryOf(const FilelistItem *file) const;
    /// Of an entry that is not indexed.
    QuorvinDataPtr unindexed(const Entry &entry) const { return _unindexed.value(entry.file.get()); }
    std::span<const quint16> terms(const Entry &entry) const;
    std::span<const quint32> values(const Entry &entry) const;
    /// What the numbers of the columns stand for.
    std::span<const Name> names() const { return _names; }
    const ValueTable &valueTable() const { return _valueTable; }

    /// Of memory, without the records of files that are not indexed.
    std::size_t bytes() const;

private:
    struct Block {
        std::vector<quint16> terms;
        std::vector<quint32> values;
    };
    /// The part of a record that is in columns.
    struct Row {
        std::vector<quint16> terms;
        std::vector<quint32> values;
    };

    bool fillRow(const QuorvinData &record);
    std::optional<quint16> numberOf(const QString &group, const QString &subgroup, const TermPtr &term);
    quint32 sectionOf(const QString &group, const QString &subgroup);
    void appendRow(Entry &entry);
    void append(Entry entry);
    void bury(std::size_t entry);

    std::vector<Entry> _entries;
    Slots _entryOf; ///< by the file
    QHash<const FilelistItem *, QuorvinDataPtr> _unindexed;
    std::vector<Block> _blocks;
    Row _row; ///< being filled
    std::vector<Name> _names;
    QHash<std::pair<QString, QString>, quint32> _sections; ///< by group and subgroup
    QHash<std::pair<quint32, const Term *>, quint16> _numbers;
    ValueTable _valueTable;
    std::size_t _alive = 0; ///< parameters of living records
    std::size_t _dead = 0;
    quint64 _generation = 0;
};

} // namespace quorvin
