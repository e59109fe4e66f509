// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ExportInfo.h"

#include <QHash>

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

ExportStream rowsOf(const ParameterGroups &groups, const ParameterGroups::Stream &stream, bool skipPrivate)
{
    const auto parameters = groups.parameters(stream);
    QHash<QStringView, const ParameterGroups::Parameter *> newest;
    newest.reserve(static_cast<qsizetype>(parameters.size()));
    for (const auto &parameter : parameters)
        newest.insert(parameter.term->key, &parameter);

    ExportStream rows;
    rows.reserve(parameters.size());
    for (const auto &parameter : parameters) {
        if (parameter.flags.testFlag(ParameterFlag::SkipInExport))
            continue;
        const auto &shown = *newest.value(parameter.term->key);
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
