// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/ComparisonPair.h"

#include "comparison/ComparisonRows.h"

#include <algorithm>
#include <array>
#include <span>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array kOfAnyTwoFiles{"FileName"_L1, "FileLocation"_L1, "LocalizedCreationDate"_L1,
                                    "LocalizedModificationDate"_L1};

bool isOfAnyTwoFiles(const ComparisonRow &row)
{
    return row.section == "File"_L1 && std::ranges::find(kOfAnyTwoFiles, row.key) != kOfAnyTwoFiles.end();
}

bool hasNone(std::span<const ComparisonRow> rows, qsizetype file)
{
    return std::ranges::all_of(rows, [&](const ComparisonRow &row) { return row.values[file].isEmpty(); });
}

void addSection(const QString &name, std::span<const ComparisonRow> rows, ComparisonPair &pair)
{
    if (hasNone(rows, 1) != hasNone(rows, 2))
        return (hasNone(rows, 2) ? pair.lost : pair.added).append(name);
    for (const ComparisonRow &row : rows) {
        if (row.allEqual || isOfAnyTwoFiles(row))
            continue;
        QStringList &names = row.values[2].isEmpty() ? pair.lost
            : row.values[1].isEmpty()                ? pair.added
                                                     : pair.changed;
        names.append(name + u'/' + row.values[0]);
    }
}

} // namespace

ComparisonPair comparedPair(const QuorvinData &first, const QuorvinData &second)
{
    ComparisonBuilder builder;
    builder.add(first);
    builder.add(second);
    const ComparisonContent content = builder.take();
    ComparisonPair pair;
    for (auto heading = content.begin(); heading != content.end();) {
        const auto end = std::find_if(heading + 1, content.end(),
                                      [](const ComparisonRow &row) { return row.isHeading(); });
        addSection(heading->values[0], {heading + 1, end}, pair);
        heading = end;
    }
    for (QStringList *names : {&pair.lost, &pair.added, &pair.changed})
        names->removeDuplicates();
    return pair;
}

} // namespace quorvin
