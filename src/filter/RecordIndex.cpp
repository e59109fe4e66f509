// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/RecordIndex.h"

#include "filter/RuleCondition.h"

#include <algorithm>
#include <limits>

namespace quorvin {

namespace {

constexpr std::size_t kBlockSize = 1 << 16; ///< parameters; a longer record has a block of its own

quint64 hashOf(const FilelistItem *file)
{
    return qHash(file);
}

} // namespace

std::span<const quint16> RecordIndex::terms(const Entry &entry) const
{
    return entry.count == 0 ? std::span<const quint16>()
                            : std::span(_blocks[entry.block].terms).subspan(entry.first, entry.count);
}

std::span<const quint32> RecordIndex::values(const Entry &entry) const
{
    return entry.count == 0 ? std::span<const quint32>()
                            : std::span(_blocks[entry.block].values).subspan(entry.first, entry.count);
}

std::optional<std::size_t> RecordIndex::entryOf(const FilelistItem *file) const
{
    const quint32 known
        = _entryOf.find(hashOf(file), [&](quint32 entry) { return _entries[entry].file.get() == file; });
    return known == Slots::kNone ? std::nullopt : std::optional<std::size_t>(known);
}

void RecordIndex::put(const FilelistItemPtr &file, const QuorvinDataPtr &record)
{
    remove(file);
    Entry entry;
    entry.file = file;
    if (record) {
        const auto *const type = std::ranges::find(kFileTypes, fileTypeOf(*record));
        entry.fileType = static_cast<qint8>(type - kFileTypes.begin());
        entry.duration = record->duration();
        entry.bytes = record->generalInfo().filesizeinbytes.toLongLong();
        if (fillRow(*record))
            appendRow(entry);
        else
            _unindexed.insert(file.get(), record);
        entry.isIndexed = !_unindexed.contains(file.get());
    }
    append(std::move(entry));
}

void RecordIndex::append(Entry entry)
{
    _entryOf.add(hashOf(entry.file.get()), [this](quint32 known) {
        // Nobody looks for the dead any more, so they may be anywhere, but not all in one place.
        const FilelistItem *const file = _entries[known].file.get();
        return file ? hashOf(file) : quint64{known};
    });
    makeRoom(_entries, _entries.size() + 1);
    _entries.push_back(std::move(entry));
}

void RecordIndex::remove(const FilelistItemPtr &file)
{
    if (const auto known = entryOf(file.get()))
        bury(*known);
}

void RecordIndex::bury(std::size_t entry)
{
    _alive -= _entries[entry].count;
    _dead += _entries[entry].count;
    _unindexed.remove(_entries[entry].file.get());
    _entries[entry].file.reset();
}

bool RecordIndex::fillRow(const QuorvinData &record)
{
    _row.terms.clear();
    _row.values.clear();
    const ParameterGroups &groups = record.groups();
    return groups.visitShown([&](const auto &group, const auto &parameter) {
        const auto term = numberOf(group.key, group.subgroupOf(parameter), parameter.term);
        const auto value = _valueTable.numberOf(groups.utf8Value(parameter));
        if (!term || !value)
            return false;
        _row.terms.push_back(*term);
        _row.values.push_back(*value);
        return true;
    });
}

quint32 RecordIndex::sectionOf(const QString &group, const QString &subgroup)
{
    const std::pair name(group, subgroup);
    const auto known = _sections.constFind(name);
    return known != _sections.cend() ? *known
                                     : *_sections.insert(name, static_cast<quint32>(_sections.size()));
}

std::optional<quint16> RecordIndex::numberOf(const QString &group, const QString &subgroup,
                                             const TermPtr &term)
{
    const std::pair name(sectionOf(group, subgroup), term.get());
    if (const auto known = _numbers.constFind(name); known != _numbers.cend())
        return *known;
    if (_names.size() > std::numeric_limits<quint16>::max())
        return std::nullopt;
    const auto number = static_cast<quint16>(_names.size());
    _numbers.insert(name, number);
    _names.push_back({group, subgroup, term});
    return number;
}

void RecordIndex::appendRow(Entry &entry)
{
    const std::size_t count = _row.terms.size();
    if (_blocks.empty() || _blocks.back().terms.capacity() - _blocks.back().terms.size() < count) {
        _blocks.emplace_back();
        _blocks.back().terms.reserve(std::max(count, kBlockSize));
        _blocks.back().values.reserve(std::max(count, kBlockSize));
    }
    Block &block = _blocks.back();
    entry.block = static_cast<quint32>(_blocks.size() - 1);
    entry.first = static_cast<quint32>(block.terms.size());
    entry.count = static_cast<quint32>(count);
    block.terms.insert(block.terms.end(), _row.terms.begin(), _row.terms.end());
    block.values.insert(block.values.end(), _row.values.begin(), _row.values.end());
    _alive += count;
}

void RecordIndex::compact(std::size_t least)
{
    if (_dead < least || _dead < _alive)
        return;
    RecordIndex living;
    std::vector<std::optional<quint16>> termOf(_names.size());
    std::vector<std::optional<quint32>> valueOf(_valueTable.size());
    for (Entry &entry : _entries) {
        if (!entry.file)
            continue;
        living._row = {};
        const auto oldValues = values(entry);
        std::ranges::transform(terms(entry), std::back_inserter(living._row.terms), [&](quint16 number) {
            const Name &name = _names[number];
            if (!termOf[number])
                termOf[number] = living.numberOf(name.group, name.subgroup, name.term);
            return *termOf[number];
        });
        std::ranges::transform(oldValues, std::back_inserter(living._row.values), [&](quint32 number) {
            if (!valueOf[number])
                valueOf[number] = living._valueTable.numberOf(_valueTable.value(number));
            return *valueOf[number];
        });
        living.appendRow(entry);
        living.append(std::move(entry));
    }
    living._unindexed = std::move(_unindexed);
    living._generation = _generation + 1;
    *this = std::move(living);
}

std::size_t RecordIndex::bytes() const
{
    std::size_t bytes = _valueTable.bytes() + _entries.capacity() * sizeof(Entry) + _entryOf.bytes();
    for (const Block &block : _blocks)
        bytes += block.terms.capacity() * sizeof(quint16) + block.values.capacity() * sizeof(quint32);
    return bytes;
}

} // namespace quorvin
