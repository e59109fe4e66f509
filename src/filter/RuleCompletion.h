// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace quorvin {

/// How a rule that is being typed can go on.
struct RuleCompletion {
    qsizetype position = 0; ///< of what a word replaces in the text
    qsizetype length = 0;
    QStringList words; ///< the likeliest first; none where there is nothing to offer

    bool operator==(const RuleCompletion &) const = default;
};

/// What can stand where the cursor is, that begins with what is typed of it before the cursor. Parameters,
/// from `names`, are offered by any part of their names, in their brackets. At most `kMostCompletions`.
RuleCompletion completeRule(QStringView text, qsizetype cursor, const QStringList &names);

inline constexpr qsizetype kMostCompletions = 100;

} // namespace quorvin
