// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/RuleMatcher.h"

namespace quorvin {

RuleMatcher::RuleMatcher(const Rule &rule) : _root(nodeOf(rule.simplified())) { }

RuleMatcher::Node RuleMatcher::nodeOf(const Rule &rule)
{
    Node node{rule.kind};
    if (rule.isGroup() || rule.kind == Rule::Kind::Not) {
        for (const Rule &part : rule.parts)
            node.parts.push_back(nodeOf(part));
    } else if (rule.kind != Rule::Kind::Failed) {
        node.condition = _conditions.size();
        _conditions.emplace_back(rule);
    }
    return node;
}

bool RuleMatcher::matches(const QuorvinData &record) const
{
    return evaluate(
        _root, [&](std::size_t index) { return holdsFor(_conditions[index], record); }, false);
}

bool RuleMatcher::matchesFailed() const
{
    return evaluate(
        _root, [](std::size_t) { return false; }, true);
}

bool RuleMatcher::matches(const FilelistItem &file) const
{
    if (isEmpty())
        return true;
    if (const QuorvinDataPtr record = file.quorvinData())
        return matches(*record);
    return file.isFailed() && matchesFailed();
}

bool holdsFor(const RuleCondition &condition, const QuorvinData &record)
{
    if (condition.kind() == Rule::Kind::FileType)
        return condition.holdsFor(QByteArrayView(fileTypeOf(record).data(), fileTypeOf(record).size()));
    const ParameterGroups &groups = record.groups();
    const auto isHit = [&](const ParameterGroups::Group &group, const ParameterGroups::Parameter &parameter) {
        if (parameter.flags.testFlag(ParameterFlag::SkipInExtended))
            return false;
        const ParameterPlace place{
            group.key, parameter.subgroup == 0 ? QStringView() : group.subgroups[parameter.subgroup - 1U]};
        return condition.isAbout(place, *parameter.term)
            && (!condition.needsValue() || condition.holdsFor(groups.utf8Value(parameter)));
    };
    const bool isFound = std::ranges::any_of(groups.groups(), [&](const ParameterGroups::Group &group) {
        return std::ranges::any_of(group.streams, [&](const ParameterGroups::Stream &stream) {
            return std::ranges::any_of(groups.parameters(stream),
                                       [&](const auto &parameter) { return isHit(group, parameter); });
        });
    });
    return isFound != condition.isOnAbsence();
}

} // namespace quorvin
