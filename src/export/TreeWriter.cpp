// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/TreeWriter.h"

namespace quorvin {

void TreeWriter::writeTree(const ParameterGroups &groups)
{
    for (const auto &group : groups.groups()) {
        for (const auto &stream : group.streams) {
            putHeading(group.nameOf(stream));
            quint16 subgroup = 0;
            for (const auto *parameter : groups.shownParameters(stream)) {
                if (std::exchange(subgroup, parameter->subgroup) != parameter->subgroup) {
                    if (const QString name = group.subgroupOf(*parameter); !name.isEmpty())
                        putHeading(name);
                }
                if (!skipFilePrivate() || !parameter->flags.testFlag(ParameterFlag::IsPrivateInfo))
                    putParameter(*parameter->term, groups.utf8Value(*parameter));
            }
        }
    }
}

} // namespace quorvin
