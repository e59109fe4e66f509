// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/FilterOption.h"

namespace quorvin::cli {

using namespace Qt::StringLiterals;

Option filterOption()
{
    return {.names = {u"filter"_s},
            .description
            = u"Only files that satisfy RULE, as in \"fileType = 'Video' AND [Video/Width] >= 1920\"."_s,
            .valueName = u"RULE"_s,
            .take = put<&Arguments::filter>};
}

QStringList linesOf(const RuleMistake &mistake, const QString &rule)
{
    // A tab is shown as its number, and would shift the caret.
    QString shown = rule;
    return mistake.caretUnder(shown.replace(u'\t', u' ')).split(u'\n');
}

} // namespace quorvin::cli
