// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ExportInfo.h"

#include <QHashSeed>

#include <algorithm>
#include <array>
#include <bit>
#include <span>
#include <vector>

namespace quorvin {

namespace {

bool isPrivateInExports(ParameterFlags flags)
{
    return flags.testFlag(ParameterFlag::IsPrivateInfo)
        && !flags.testFlag(ParameterFlag::IsPrivateInTreeOnly);
}

/// Whether it has parameters, and none of them is marked for export.
bool isForTreeAlone(const ParameterGroups &groups, const ParameterGroups::Group &group)
{
    bool isEmpty = true;
    for (const auto &stream : group.streams) {
        for (const auto &parameter : groups.parameters(stream)) {
            if (!parameter.flags.testFlag(ParameterFlag::SkipInExport))
                return false;
            isEmpty = false;
        }
    }
    return !isEmpty;
}

/// Of each key of a stream the last parameter: a table with open places, since a look-up by key is what an
/// export does most.
class NewestOfKeys {
public:
    explicit NewestOfKeys(std::span<const ParameterGroups::Parameter> parameters)
        : _places(std::bit_ceil(2 * parameters.size() + 1))
    {
        for (const auto &parameter : parameters)
            _places[placeOf(parameter.term->key)] = &parameter;
    }

    const ParameterGroups::Parameter &of(const ParameterGroups::Parameter &parameter) const
    {
        return *_places[placeOf(parameter.term->key)];
    }

private:
    /// That of the key, or the free one where it belongs.
    std::size_t placeOf(const QString &key) const
    {
        std::size_t place = mixed(key) & (_places.size() - 1);
        while (_places[place] && _places[place]->term->key != key)
            place = (place + 1) & (_places.size() - 1);
        return place;
    }
    /// Four letters at a time, from a start that no file can know: keys may be made to meet.
    static std::size_t mixed(QStringView key)
    {
        constexpr quint64 kFactor = 0x9e3779b97f4a7c15;
        static const quint64 start = static_cast<quint64>(QHashSeed::globalSeed());
        quint64 sum = start ^ static_cast<quint64>(key.size());
        while (!key.isEmpty()) {
            const auto *letters = reinterpret_cast<const char *>(key.utf16());
            const qsizetype count = std::min<qsizetype>(key.size(), 4);
            std::array<char, sizeof(quint64)> piece{};
            std::copy_n(letters, count * qsizetype{sizeof(QChar)}, piece.begin());
            sum = (sum ^ std::bit_cast<quint64>(piece)) * kFactor;
            sum ^= sum >> 32U;
            key = key.sliced(count);
        }
        return sum;
    }

    std::vector<const ParameterGroups::Parameter *> _places;
};

ExportStream rowsOf(const ParameterGroups &groups, const ParameterGroups::Stream &stream, bool skipPrivate)
{
    const auto parameters = groups.parameters(stream);
    const NewestOfKeys newest(parameters);

    ExportStream rows;
    rows.reserve(parameters.size());
    for (const auto &parameter : parameters) {
        if (parameter.flags.testFlag(ParameterFlag::SkipInExport))
            continue;
        const auto &shown = newest.of(parameter);
        if (!skipPrivate || !isPrivateInExports(shown.flags))
            rows.push_back({shown.term.get(), groups.utf8Value(shown)});
    }
    return rows;
}

} // namespace

ExportInfo computeExportInfo(const RecordContents &record, bool withoutFilePrivate)
{
    ExportInfo info;
    info.filename = record.filename;
    for (const auto &group : record.groups.groups()) {
        if (group.streams.empty() || isForTreeAlone(record.groups, group))
            continue;
        ExportSection &section = info.sections.emplace_back();
        section.name = group.key;
        for (const auto &stream : group.streams)
            section.streams.push_back(rowsOf(record.groups, stream, withoutFilePrivate));
    }
    return info;
}

} // namespace quorvin
