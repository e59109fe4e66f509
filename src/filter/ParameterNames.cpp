// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/ParameterNames.h"

#include "platform/FileOrder.h"

namespace quorvin {

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
