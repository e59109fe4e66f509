// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/ComparisonRows.h"

#include "model/Utf8.h"

#include <algorithm>

namespace quorvin {

namespace {

bool isCompared(const ParameterGroups::Parameter &parameter)
{
    return !parameter.flags.testFlag(ParameterFlag::SkipInComparison);
}

/// May be false for texts that are equal.
bool isKnownEqual(const QString &text, QByteArrayView utf8)
{
    return text.size() <= utf8.size()
        && QAnyStringView::equal(QUtf8StringView(utf8.data(), utf8.size()), text)
        && !text.startsWith(QChar::ByteOrderMark) && !utf8.startsWith("\xef\xbb\xbf");
}

} // namespace

void ComparisonBuilder::add(const QuorvinData &record)
{
    const ParameterGroups &groups = record.groups();
    for (const auto &group : groups.groups()) {
        for (const auto &stream : group.streams) {
            if (std::ranges::any_of(groups.parameters(stream), isCompared))
                addStream(sectionOf(group, stream), groups, stream);
        }
    }
    ++_files;
}

ComparisonBuilder::Section &ComparisonBuilder::sectionOf(const ParameterGroups::Group &group,
                                                         const ParameterGroups::Stream &stream)
{
    const std::pair identity(group.key, std::max<quint32>(stream.number, 1));
    const auto known = _places.constFind(identity);
    if (known == _places.cend()) {
        _places.insert(identity, _sections.size());
        _sections.push_back({group.key, stream.number, group.numbered, {}, {}});
        return _sections.back();
    }
    Section &section = _sections[*known];
    section.isNumbered = section.isNumbered || group.numbered;
    return section;
}

void ComparisonBuilder::addStream(Section &section, const ParameterGroups &groups,
                                  const ParameterGroups::Stream &stream)
{
    std::size_t likely = 0;
    for (const auto &parameter : groups.parameters(stream)) {
        if (!isCompared(parameter))
            continue;
        const std::size_t row = rowOf(section, parameter.term, likely);
        put(section.rows[row], groups.utf8Value(parameter));
        likely = row + 1;
    }
}

/// Files mostly have their parameters in the same order, so a row mostly follows the one before.
std::size_t ComparisonBuilder::rowOf(Section &section, const TermPtr &term, std::size_t likely) const
{
    if (likely < section.rows.size() && section.rows[likely].term->key == term->key)
        return likely;
    const auto known = section.places.constFind(term->key);
    if (known != section.places.cend())
        return *known;
    section.rows.push_back({term, {}});
    section.places.insert(term->key, section.rows.size() - 1);
    return section.rows.size() - 1;
}

void ComparisonBuilder::put(Row &row, QByteArrayView value) const
{
    auto &runs = row.runs;
    const bool isRepeated = !runs.empty() && runs.back().end() > _files;
    if (isRepeated && --runs.back().count == 0)
        runs.pop_back();
    if (!runs.empty() && runs.back().end() == _files && isKnownEqual(runs.back().value, value))
        ++runs.back().count;
    else
        runs.push_back({_files, 1, textOfUtf8(value)});
}

const ComparisonRow *ComparisonBuilder::next()
{
    if (_nextSection == _sections.size())
        return nullptr;
    const Section &section = _sections[_nextSection];
    _current = _nextRow == 0 ? headingOf(section) : completed(section, section.rows[_nextRow - 1]);
    if (_nextRow++ == section.rows.size()) {
        _nextRow = 0;
        ++_nextSection;
    }
    return &_current;
}

ComparisonRow ComparisonBuilder::headingOf(const Section &section) const
{
    const auto number = std::max<quint32>(section.stream, 1);
    ComparisonRow heading;
    heading.values = {ParameterGroups::Group{section.key, section.isNumbered, {}, {}}.nameOf({number, 0, 0})};
    heading.section = section.key;
    heading.stream = section.stream;
    heading.rows = static_cast<int>(section.rows.size());
    heading.differing = static_cast<int>(
        std::ranges::count_if(section.rows, [this](const Row &row) { return !isEqualInAll(row); }));
    heading.allEqual = heading.differing == 0;
    return heading;
}

ComparisonRow ComparisonBuilder::completed(const Section &section, const Row &row) const
{
    ComparisonRow complete;
    complete.values.reserve(_files + 1);
    complete.values.append(row.term->label);
    for (const Run &run : row.runs) {
        complete.values.resize(run.first + 1);
        for (qsizetype i = 0; i < run.count; ++i)
            complete.values.append(run.value);
    }
    complete.values.resize(_files + 1);
    complete.allEqual = isEqualInAll(row);
    complete.section = section.key;
    complete.stream = section.stream;
    complete.key = row.term->key;
    return complete;
}

bool ComparisonBuilder::isEqualInAll(const Row &row) const
{
    const QString &first = row.runs.front().value;
    qsizetype files = 0;
    for (const Run &run : row.runs) {
        if (run.value != first)
            return false;
        files += run.count;
    }
    return files == _files || first.isEmpty();
}

ComparisonContent ComparisonBuilder::take()
{
    ComparisonContent content;
    while (next())
        content.push_back(std::move(_current));
    return content;
}

ComparisonContent comparisonRows(std::span<const QuorvinDataPtr> records)
{
    ComparisonBuilder builder;
    for (const QuorvinDataPtr &record : records)
        builder.add(*record);
    return builder.take();
}

} // namespace quorvin
