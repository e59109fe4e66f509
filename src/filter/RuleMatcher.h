// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"
#include "filter/RuleCondition.h"
#include "intake/FilelistItem.h"
#include "model/QuorvinData.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace quorvin {

/// A rule made ready for many files. Does not change once made, so any thread may use it.
class RuleMatcher {
public:
    explicit RuleMatcher(const Rule &rule);

    /// Each file satisfies it.
    bool isEmpty() const { return _root.kind == Rule::Kind::All && _root.parts.empty(); }

    /// Whether a file with that record satisfies the rule. Looks at what the Extended tree shows.
    bool matches(const QuorvinData &record) const;
    /// Whether a file does that could not be read: no condition on what is in it holds.
    bool matchesFailed() const;
    /// A file whose analysis has not ended satisfies only the rule that says nothing.
    bool matches(const FilelistItem &file) const;

    /// The conditions but `failed`.
    std::span<const RuleCondition> conditions() const { return _conditions; }
    /// What the rule makes of the answers to its conditions; `answer` is called with their index, for those
    /// that count.
    template <typename Answer>
    bool matchesBy(const Answer &answer) const
    {
        return evaluate(_root, answer, false);
    }

private:
    struct Node {
        Rule::Kind kind = Rule::Kind::All;
        std::size_t condition = 0; ///< index
        std::vector<Node> parts = {};
    };

    Node nodeOf(const Rule &rule);

    template <typename Answer>
    static bool evaluate(const Node &node, const Answer &answer, bool isFailed)
    {
        const auto holds = [&](const Node &part) { return evaluate(part, answer, isFailed); };
        switch (node.kind) {
        case Rule::Kind::All:
            return std::ranges::all_of(node.parts, holds);
        case Rule::Kind::Any:
            return std::ranges::any_of(node.parts, holds);
        case Rule::Kind::Not:
            return !holds(node.parts.front());
        case Rule::Kind::Failed:
            return isFailed;
        default:
            return answer(node.condition);
        }
    }

    std::vector<RuleCondition> _conditions;
    Node _root;
};

/// Whether a condition holds for a record.
bool holdsFor(const RuleCondition &condition, const QuorvinData &record);

} // namespace quorvin
