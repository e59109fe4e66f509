// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"

#include <QString>
#include <QStringView>

#include <tl/expected.hpp>

namespace quorvin {

/// Why a text is no rule.
struct RuleMistake {
    enum class Wanted { Nothing, Condition, Comparison, FileType, Value, Connective };

    qsizetype position = 0; ///< in the text, up to its length: what is missing is missing there
    QString reason; ///< for a person to read, without the text
    Wanted wanted = Wanted::Nothing; ///< what would have its place there, where that can be told in a word
    Rule::Kind subject = Rule::Kind::All; ///< of the comparison that is wanted

    /// The line of the text that has the mistake and, below it, a caret under its place.
    QString caretUnder(QStringView text) const;
    bool operator==(const RuleMistake &) const = default;
};

/// Reads a rule:
///
///     fileType = 'Video' AND [Video/Width] >= 1920
///     parameterValue CONTAINS 'Canon' OR [EXIF/ISO Speed Ratings] IN 100..400
///     NOT ([GPS/GPS Latitude] IS MISSING OR failed)
///
/// Words are read in any case. NOT binds closer than AND, AND closer than OR. A quote within a text of the
/// same quotes is doubled, and so is a bracket that closes within a name. "" is the rule that says nothing.
/// What it gives is simplified. Any thread.
tl::expected<Rule, RuleMistake> parseRule(QStringView text);

/// The text of a rule, which `parseRule` reads as `rule.simplified()`. "" of one that says nothing.
QString textOfRule(const Rule &rule);

/// The quoted form of a text, and the bracketed form of a parameter's name.
QString quotedText(const QString &text);
QString bracketedName(const QString &name);

/// The deepest nesting of parentheses and NOT that is read.
inline constexpr int kMostRuleDepth = 64;

} // namespace quorvin
