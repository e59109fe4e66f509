// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/QuorvinData.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace quorvin {

namespace {

QString textOfTree(const ExtTreeItems &tree, bool skipFilePrivate)
{
    QStringList lines;
    convertFromDataArray(tree, lines, skipFilePrivate);
    return lines.join(u'\n');
}

/// The leaves of a stream by subgroup; at 0 those that are in none.
std::vector<ExtTreeItems> leavesBySubgroup(const ParameterGroups &groups, const ParameterGroups::Group &group,
                                           const ParameterGroups::Stream &stream)
{
    std::vector<ExtTreeItems> leaves(group.subgroups.size() + 1);
    for (const auto &parameter : groups.parameters(stream)) {
        if (!parameter.flags.testFlag(ParameterFlag::SkipInExtended))
            leaves[parameter.subgroup].push_back(ExtTreeItem::itemWithKey(
                parameter.term->key, parameter.term->label, groups.value(parameter), parameter.flags));
    }
    return leaves;
}

ExtTreeItems childrenOf(const ParameterGroups &groups, const ParameterGroups::Group &group,
                        const ParameterGroups::Stream &stream)
{
    std::vector<ExtTreeItems> leaves = leavesBySubgroup(groups, group, stream);
    ExtTreeItems children = std::move(leaves.front());
    for (std::size_t i = 0; i < group.subgroups.size(); ++i) {
        const QString &name = group.subgroups[i];
        if (name.isEmpty())
            std::ranges::move(leaves[i + 1], std::back_inserter(children));
        else if (!leaves[i + 1].empty())
            children.push_back(ExtTreeItem::groupTreeWithKey(name, name, std::move(leaves[i + 1]), 0));
    }
    return children;
}

} // namespace

ExtTreeItems QuorvinData::extendedContent() const
{
    ExtTreeItems tree;
    for (const auto &group : groups().groups()) {
        for (const auto &stream : group.streams) {
            tree.push_back(ExtTreeItem::groupTreeWithKey(group.key, group.nameOf(stream),
                                                         childrenOf(groups(), group, stream), stream.number));
        }
    }
    return tree;
}

QString QuorvinData::stringForExportText() const
{
    return textOfTree(extendedContent(), false);
}

QString QuorvinData::stringForExportTextWithoutFilePrivate() const
{
    return textOfTree(extendedContent(), true);
}

QString QuorvinData::stringForExportGeneral() const
{
    const GeneralFacts &general = generalInfo();
    QStringList summary;
    for (const QString &piece : {general.format, general.filesize, general.duration, general.bitrate,
                                 general.imageSize.value_or(QString())})
        addStringIfNotEmpty(summary, piece);

    QStringList lines{QLatin1String("Container: ") + summary.join(QLatin1String(", "))};
    for (const GeneralLine &line : general.lines)
        lines.append(line.name + QLatin1String(": ") + line.value.plain);
    return lines.join(u'\n');
}

void addStringIfNotEmpty(QStringList &list, const QString &text)
{
    if (!text.isEmpty())
        list.append(text);
}

void convertFromDataArray(const ExtTreeItems &items, QStringList &lines, bool skipFilePrivate)
{
    for (const ExtTreeItemPtr &item : items) {
        if (item->children()) {
            if (!lines.isEmpty())
                lines.append(QString());
            lines.append(item->extValue());
            convertFromDataArray(*item->children(), lines, skipFilePrivate);
        } else if (!skipFilePrivate || !item->isPrivateInfo()) {
            lines.append(item->extValue());
        }
    }
}

} // namespace quorvin
