// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/QuorvinData.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvin {

namespace {

QString textOfTree(const ExtTreeItems &tree, bool skipFilePrivate)
{
    QStringList lines;
    convertFromDataArray(tree, lines, skipFilePrivate);
    return lines.join(u'\n');
}

/// The values of a record as texts. Long ones that lie in one place become one text, so that many parameters
/// of one value cost no more than one.
class ValueTexts {
public:
    explicit ValueTexts(const ParameterGroups &groups) : _groups(groups) { }

    QString of(const ParameterGroups::Parameter &parameter)
    {
        if (parameter.length < kLongLength)
            return _groups.value(parameter);
        QString &text = _long[{parameter.offset, parameter.length}];
        if (text.isEmpty())
            text = _groups.value(parameter);
        return text;
    }

private:
    static constexpr quint32 kLongLength = 256;

    const ParameterGroups &_groups;
    QHash<std::pair<quint32, quint32>, QString> _long;
};

ExtTreeItems childrenOf(const ParameterGroups &groups, const ParameterGroups::Group &group,
                        const ParameterGroups::Stream &stream, ValueTexts &values)
{
    const auto shown = groups.shownParameters(stream);
    const auto leafOf = [&](const ParameterGroups::Parameter *parameter) {
        return ExtTreeItem::itemWithKey(parameter->term->key, parameter->term->label, values.of(*parameter),
                                        parameter->flags);
    };
    ExtTreeItems children;
    for (auto begin = shown.begin(); begin != shown.end();) {
        const quint16 subgroup = (*begin)->subgroup;
        const auto end = std::find_if(begin, shown.end(), [&](const ParameterGroups::Parameter *parameter) {
            return parameter->subgroup != subgroup;
        });
        ExtTreeItems leaves;
        std::transform(begin, end, std::back_inserter(leaves), leafOf);
        const QString name = group.subgroupOf(**begin);
        if (name.isEmpty())
            std::ranges::move(leaves, std::back_inserter(children));
        else
            children.push_back(ExtTreeItem::groupTreeWithKey(name, name, std::move(leaves), 0));
        begin = end;
    }
    return children;
}

} // namespace

ExtTreeItems QuorvinData::extendedContent() const
{
    ValueTexts values(groups());
    ExtTreeItems tree;
    for (const auto &group : groups().groups()) {
        for (const auto &stream : group.streams) {
            tree.push_back(ExtTreeItem::groupTreeWithKey(
                group.key, group.nameOf(stream), childrenOf(groups(), group, stream, values), stream.number));
        }
    }
    return tree;
}

ExtTreeItems QuorvinData::extendedContentHaving(const SearchText &text) const
{
    return text.isEmpty() ? extendedContent() : extTree(extendedContent(), text);
}

bool QuorvinData::isContentHas(const SearchText &text) const
{
    const auto isHit = [&](const ParameterGroups::Parameter &parameter) {
        return !parameter.flags.testFlag(ParameterFlag::SkipInExtended)
            && (text.isIn(groups().utf8Value(parameter)) || text.isIn(parameter.term->label));
    };
    return std::ranges::any_of(groups().groups(), [&](const ParameterGroups::Group &group) {
        return std::ranges::any_of(group.streams, [&](const ParameterGroups::Stream &stream) {
            return std::ranges::any_of(groups().parameters(stream), isHit);
        });
    });
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

ExtTreeItems extTree(const ExtTreeItems &items, const SearchText &having)
{
    ExtTreeItems found;
    for (const ExtTreeItemPtr &item : items) {
        if (item->children()) {
            ExtTreeItems children = extTree(*item->children(), having);
            if (!children.empty())
                found.push_back(item->newInstanceWithSameProperties(std::move(children)));
        } else if (item->value() && (having.isIn(item->name()) || having.isIn(item->value()->plain))) {
            found.push_back(item->newInstanceWithSameProperties());
        }
    }
    return found;
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
