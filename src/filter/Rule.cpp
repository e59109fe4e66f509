// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/Rule.h"

#include <algorithm>

namespace quorvin {

Rule Rule::negated(Rule part)
{
    Rule rule{.kind = Kind::Not};
    rule.parts.push_back(std::move(part));
    return rule;
}

Rule Rule::fileType(const QString &type, Comparison comparison)
{
    return {.kind = Kind::FileType, .comparison = comparison, .value = {type}};
}

Rule Rule::anyParameter(Kind kind, Comparison comparison, const QString &text)
{
    return {.kind = kind, .comparison = comparison, .value = {text}};
}

Rule Rule::withValue(const QString &section, const QString &name, const QString &value)
{
    return {.kind = Kind::Parameter, .parameter = section + u'/' + name, .value = {value}};
}

Rule Rule::without(const QString &section, const QString &name)
{
    return {.kind = Kind::Parameter, .comparison = Comparison::IsMissing, .parameter = section + u'/' + name};
}

bool Rule::isEmpty() const
{
    return (isGroup() || kind == Kind::Not) && std::ranges::all_of(parts, &Rule::isEmpty);
}

Rule Rule::simplified() const
{
    Rule rule = *this;
    rule.parts.clear();
    for (const Rule &part : parts) {
        if (!part.isEmpty())
            rule.parts.push_back(part.simplified());
    }
    if (isEmpty())
        return {};
    if (isGroup() && rule.parts.size() == 1)
        return {std::move(rule.parts.front())};
    return rule;
}

bool isAllowed(Rule::Kind kind, Rule::Comparison comparison)
{
    using enum Rule::Comparison;
    switch (kind) {
    case Rule::Kind::FileType:
        return comparison == Equal || comparison == NotEqual;
    case Rule::Kind::ParameterName:
    case Rule::Kind::ParameterValue:
        return comparison == Equal || comparison == NotEqual || comparison == Contains;
    case Rule::Kind::Parameter:
        return true;
    default:
        return false;
    }
}

} // namespace quorvin
