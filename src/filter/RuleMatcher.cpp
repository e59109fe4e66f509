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
    const bool isFound = !groups.visitShown([&](const auto &group, const auto &parameter) {
        const QString subgroup = group.subgroupOf(parameter);
        return !condition.isAbout({group.key, subgroup}, *parameter.term)
            || (condition.needsValue() && !condition.holdsFor(groups.utf8Value(parameter)));
    });
    return isFound != condition.isOnAbsence();
}

} // namespace quorvin
