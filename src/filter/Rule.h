// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <array>
#include <utility>
#include <vector>

namespace quorvin {

/// What a file is compared with.
struct RuleValue {
    QString text;
    bool isQuantity = false; ///< stands without quotes, as `1920`, `5 Mb/s` or `1/500`: compared by its size

    bool operator==(const RuleValue &) const = default;
};

/// A rule on files: a condition, or several of them under All, Any or Not. A value, free of any list; the
/// default is All of nothing, which each file satisfies.
struct Rule {
    enum class Kind {
        All, ///< every part; AND
        Any, ///< at least one part; OR
        Not, ///< not its one part
        Failed, ///< could not be read; the only condition that such a file can satisfy
        Private, ///< has a parameter that gives a person away, as `privateKindOf` tells
        FileType, ///< what the file is: one of `kFileTypes`
        ParameterName, ///< the label of any parameter
        ParameterValue, ///< the value of any parameter
        Parameter, ///< the value of any parameter with that `parameter` name
    };
    enum class Comparison {
        Equal,
        NotEqual,
        Less,
        LessOrEqual,
        Greater,
        GreaterOrEqual,
        Contains,
        Matches, ///< a regular expression is found in it, whatever the case
        Within, ///< from `value` to `upTo`, both included
        IsMissing, ///< the file has no such parameter
    };

    Kind kind = Kind::All;
    Comparison comparison = Comparison::Equal; ///< of the kinds from `FileType` on
    QString parameter
        = {}; ///< SECTION/NAME: a heading of the Extended tree without number, a label or key in it
    RuleValue value = {};
    RuleValue upTo = {}; ///< of `Within`
    std::vector<Rule> parts = {}; ///< of All, Any and Not

    static Rule all(std::vector<Rule> parts) { return {.kind = Kind::All, .parts = std::move(parts)}; }
    static Rule any(std::vector<Rule> parts) { return {.kind = Kind::Any, .parts = std::move(parts)}; }
    static Rule negated(Rule part);
    static Rule failed() { return {.kind = Kind::Failed}; }
    static Rule givesAway() { return {.kind = Kind::Private}; }
    static Rule fileType(const QString &type, Comparison comparison = Comparison::Equal);
    /// A condition on `ParameterName` or `ParameterValue`.
    static Rule anyParameter(Kind kind, Comparison comparison, const QString &text);
    /// The rule of "Show only files with this value". `section` without its number.
    static Rule withValue(const QString &section, const QString &name, const QString &value);
    /// The rule of "Show only files without this parameter".
    static Rule without(const QString &section, const QString &name);

    bool isGroup() const { return kind == Kind::All || kind == Kind::Any; }
    /// A condition that is a word alone.
    bool isWord() const { return kind == Kind::Failed || kind == Kind::Private; }
    /// Whether each file satisfies it because it says nothing: no condition anywhere in it.
    bool isEmpty() const;
    /// The same without groups that are empty, or that stand around one part alone. What a text says is so.
    Rule simplified() const;

    bool operator==(const Rule &) const = default;
};

inline constexpr std::array kFileTypes{QLatin1String("Video"), QLatin1String("Audio"), QLatin1String("Image"),
                                       QLatin1String("Unknown")};

/// Whether a condition of that kind may use that comparison.
bool isAllowed(Rule::Kind kind, Rule::Comparison comparison);

} // namespace quorvin
