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

ComparisonRow headingOf(const QString &name, const std::vector<ComparisonRow> &rows)
{
    ComparisonRow heading;
    heading.values = {name};
    heading.section = rows.front().section;
    heading.stream = rows.front().stream;
    heading.rows = static_cast<int>(rows.size());
    heading.differing = static_cast<int>(std::ranges::count(rows, false, &ComparisonRow::allEqual));
    heading.allEqual = heading.differing == 0;
    return heading;
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
        const std::size_t row = rowOf(section, *parameter.term, likely);
        put(section.rows[row], groups.utf8Value(parameter));
        likely = row + 1;
    }
}

/// Files mostly have their parameters in the same order, so a row mostly follows the one before.
std::size_t ComparisonBuilder::rowOf(Section &section, const Term &term, std::size_t likely) const
{
    if (likely < section.rows.size() && section.rows[likely].key == term.key)
        return likely;
    const auto known = section.places.constFind(term.key);
    if (known != section.places.cend())
        return *known;
    ComparisonRow &row = section.rows.emplace_back();
    row.values = {term.label};
    row.section = section.key;
    row.stream = section.stream;
    row.key = term.key;
    section.places.insert(term.key, section.rows.size() - 1);
    return section.rows.size() - 1;
}

/// Neighbours with equal values share their text.
void ComparisonBuilder::put(ComparisonRow &row, QByteArrayView value) const
{
    row.values.resize(_files + 1);
    const QString &before = row.values.back();
    row.values.append(_files > 0 && isKnownEqual(before, value) ? before : textOfUtf8(value));
}

void ComparisonBuilder::complete(ComparisonRow &row) const
{
    row.values.resize(_files + 1);
    const auto values = row.inFiles();
    row.allEqual = std::ranges::all_of(values, [&first = values.front()](const QString &value) {
        return shareText(value, first) || value == first;
    });
}

ComparisonContent ComparisonBuilder::take()
{
    ComparisonContent content;
    for (Section &section : _sections) {
        for (ComparisonRow &row : section.rows)
            complete(row);
        content.push_back(headingOf(ParameterGroups::Group{section.key, section.isNumbered, {}, {}}.nameOf(
                                        {std::max<quint32>(section.stream, 1), 0, 0}),
                                    section.rows));
        std::ranges::move(section.rows, std::back_inserter(content));
    }
    *this = {};
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
