// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/ParameterNames.h"

#include "platform/FileOrder.h"

namespace quorvin {

void ParameterNames::add(const QuorvinData &record)
{
    const ParameterGroups &groups = record.groups();
    for (const auto &group : groups.groups()) {
        for (const auto &stream : group.streams) {
            for (const auto &parameter : groups.parameters(stream)) {
                if (!parameter.flags.testFlag(ParameterFlag::SkipInExtended))
                    add(group.key,
                        parameter.subgroup == 0 ? QString() : group.subgroups[parameter.subgroup - 1U],
                        *parameter.term);
            }
        }
    }
}

void ParameterNames::add(const QString &group, const QString &subgroup, const Term &term)
{
    _names.insert((subgroup.isEmpty() ? group : subgroup) + u'/' + term.label);
}

QStringList ParameterNames::names() const
{
    const QStringList names = _names.values();
    QStringList sorted;
    sorted.reserve(names.size());
    for (const std::size_t index : fileBrowserOrder({names.begin(), names.end()}))
        sorted.append(names[static_cast<qsizetype>(index)]);
    return sorted;
}

} // namespace quorvin
