// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/ParameterTally.h"

#include "model/Utf8.h"
#include "platform/FileOrder.h"

#include <QStringList>

#include <algorithm>
#include <limits>
#include <numeric>

namespace quorvin {

namespace {

constexpr quint32 kUnknown = std::numeric_limits<quint32>::max();
constexpr std::size_t kFilesBetweenStops = 1024;

Rule conditionOn(const QString &parameter)
{
    return {.kind = Rule::Kind::Parameter, .comparison = Rule::Comparison::IsMissing, .parameter = parameter};
}

} // namespace

ParameterTally::ParameterTally(const QString &parameter)
    : _condition(conditionOn(parameter)), _countsFailures(parameter == kFailures)
{
    _count.parameter = parameter;
}

void ParameterTally::begin(const FilelistItemPtr &file, qint64 duration, qint64 bytes)
{
    _foundBefore = _found.size();
    _count.files.push_back({file, duration, bytes});
}

void ParameterTally::end()
{
    if (_found.size() == _foundBefore)
        _count.missing.push_back(static_cast<quint32>(_count.files.size() - 1));
}

void ParameterTally::addValue(QByteArrayView utf8)
{
    if (const auto number = _table.numberOf(utf8))
        _found.emplace_back(*number, static_cast<quint32>(_count.files.size() - 1));
}

void ParameterTally::addValues(const QuorvinData &record)
{
    const ParameterGroups &groups = record.groups();
    groups.visitShown([&](const auto &group, const auto &parameter) {
        const QString subgroup = group.subgroupOf(parameter);
        if (_condition.isAbout({group.key, subgroup}, *parameter.term))
            addValue(groups.utf8Value(parameter));
        return true;
    });
}

void ParameterTally::add(const FilelistItemPtr &file, const QuorvinData &record)
{
    begin(file, record.duration(), record.generalInfo().filesizeinbytes.toLongLong());
    if (!_countsFailures)
        addValues(record);
    end();
}

void ParameterTally::addFailed(const FilelistItemPtr &file, const QString &reason)
{
    begin(file, 0, 0);
    if (_countsFailures)
        addValue(reason.toUtf8());
    else
        _count.failed.push_back(static_cast<quint32>(_count.files.size() - 1));
}

quint32 ParameterTally::numberOf(const RecordIndex &index, quint32 value)
{
    if (_numberOf.empty())
        _numberOf.assign(index.valueTable().size(), kUnknown);
    quint32 &number = _numberOf[value];
    if (number == kUnknown)
        number = _table.numberOf(index.valueTable().value(value)).value_or(kUnknown);
    return number;
}

void ParameterTally::add(const RecordIndex &index, const RecordIndex::Entry &entry)
{
    if (entry.fileType == RecordIndex::kFailed)
        return addFailed(entry.file, entry.file->failureReason());
    for (const RecordIndex::Name &name : index.names().subspan(_isAbout.size()))
        _isAbout.push_back(_condition.isAbout({name.group, name.subgroup}, *name.term) ? 1 : 0);
    begin(entry.file, entry.duration, entry.bytes);
    const auto place = static_cast<quint32>(_count.files.size() - 1);
    if (_countsFailures) {
        // None of them has a reason.
    } else if (entry.isIndexed) {
        const auto terms = index.terms(entry);
        for (std::size_t i = 0; i < terms.size(); ++i) {
            if (_isAbout[terms[i]] == 0)
                continue;
            if (const quint32 number = numberOf(index, index.values(entry)[i]); number != kUnknown)
                _found.emplace_back(number, place);
        }
    } else {
        addValues(*index.unindexed(entry));
    }
    end();
}

/// Puts the places value by value, each file once.
void ParameterTally::gatherPlaces()
{
    _count.values.resize(_table.size());
    for (const auto &[number, place] : _found)
        ++_count.values[number].sum.streams;
    qint64 before = 0;
    for (ParameterCount::Value &value : _count.values) {
        value.first = static_cast<quint32>(before);
        before += value.sum.streams;
    }
    _count.places.resize(_found.size());
    for (const auto &[number, place] : _found) {
        ParameterCount::Value &value = _count.values[number];
        quint32 *const end = &_count.places[value.first] + value.size;
        if (value.size > 0 && end[-1] == place)
            continue;
        *end = place;
        ++value.size;
    }
}

void ParameterTally::sortValues()
{
    std::vector<QString> texts;
    texts.reserve(_count.values.size());
    for (const ParameterCount::Value &value : _count.values)
        texts.push_back(value.text);
    std::vector<std::size_t> order = fileBrowserOrder(texts);
    std::ranges::stable_sort(order, std::ranges::greater(),
                             [this](std::size_t value) { return _count.values[value].sum.files; });
    std::vector<ParameterCount::Value> sorted;
    sorted.reserve(order.size());
    for (const std::size_t value : order)
        sorted.push_back(std::move(_count.values[value]));
    _count.values = std::move(sorted);
}

ParameterCountPtr ParameterTally::finish()
{
    gatherPlaces();
    for (std::size_t number = 0; number < _count.values.size(); ++number) {
        ParameterCount::Value &value = _count.values[number];
        value.text = textOfUtf8(_table.value(static_cast<quint32>(number)));
        value.quantity = _table.quantity(static_cast<quint32>(number));
        const qint64 streams = value.sum.streams;
        value.sum = _count.sumOf(_count.placesOf(value));
        value.sum.streams = streams;
    }
    sortValues();
    return std::make_shared<const ParameterCount>(std::move(_count));
}

ParameterCountPtr countOf(const QString &parameter, const RecordIndex &index,
                          std::span<const FilelistItemPtr> files, const std::stop_token &stop)
{
    ParameterTally tally(parameter);
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (i % kFilesBetweenStops == 0 && stop.stop_requested())
            return nullptr;
        if (const auto entry = index.entryOf(files[i].get()))
            tally.add(index, index.entries()[*entry]);
        else
            tally.addUnread();
    }
    return tally.finish();
}

} // namespace quorvin
