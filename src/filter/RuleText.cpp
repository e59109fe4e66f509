// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/RuleText.h"

#include "filter/RuleLexer.h"
#include "model/Quantity.h"

#include <QRegularExpression>

#include <unicode/uchar.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;
using enum Rule::Comparison;
using Wanted = RuleMistake::Wanted;

struct Subject {
    QLatin1String word;
    Rule::Kind kind;
};

constexpr std::array kSubjects{
    Subject{"fileType"_L1, Rule::Kind::FileType},
    Subject{"parameterName"_L1, Rule::Kind::ParameterName},
    Subject{"parameterValue"_L1, Rule::Kind::ParameterValue},
};

/// Conditions of one word.
constexpr std::array kConditionWords{
    Subject{"failed"_L1, Rule::Kind::Failed},
    Subject{"private"_L1, Rule::Kind::Private},
};

struct Sign {
    QLatin1String text;
    Rule::Comparison comparison;
};

/// The longer ones first. The last of a comparison is the one that is written.
constexpr std::array kSymbols{
    Sign{"<>"_L1, NotEqual},       Sign{"!="_L1, NotEqual}, Sign{"<="_L1, LessOrEqual},
    Sign{">="_L1, GreaterOrEqual}, Sign{"<"_L1, Less},      Sign{">"_L1, Greater},
    Sign{"=="_L1, Equal},          Sign{"="_L1, Equal},
};
constexpr std::array kWords{
    Sign{"CONTAINS"_L1, Contains},
    Sign{"MATCHES"_L1, Matches},
    Sign{"IN"_L1, Within},
};

bool isOfOrder(Rule::Comparison comparison)
{
    return comparison == Less || comparison == LessOrEqual || comparison == Greater
        || comparison == GreaterOrEqual || comparison == Within;
}

/// A parser that goes down a level for each rule of the grammar. After a mistake nothing that it gives
/// counts.
class RuleParser {
public:
    explicit RuleParser(QStringView text) : _lexer(text) { }

    tl::expected<Rule, RuleMistake> parse()
    {
        if (_lexer.isAtEnd())
            return Rule{};
        Rule rule = any();
        if (!_mistake && !_lexer.isAtEnd())
            refuse(u"AND, OR or the end was expected"_s, Wanted::Connective);
        if (_mistake)
            return tl::unexpected(*std::move(_mistake));
        return rule;
    }

private:
    Rule any() { return chain(Rule::Kind::Any, "OR"_L1, &RuleParser::all); }
    Rule all() { return chain(Rule::Kind::All, "AND"_L1, &RuleParser::negation); }

    Rule chain(Rule::Kind kind, QLatin1String connective, Rule (RuleParser::*part)())
    {
        Rule group{.kind = kind};
        do
            group.parts.push_back((this->*part)());
        while (!_mistake && _lexer.takeWord(connective));
        return group.parts.size() == 1 ? Rule(std::move(group.parts.front())) : group;
    }

    Rule negation()
    {
        const qsizetype place = _lexer.position();
        const bool isNegated = _lexer.takeWord("NOT"_L1);
        if (!isNegated && !_lexer.takeSymbol("("_L1))
            return condition();
        if (_depth == kMostRuleDepth)
            return refuseAt(place, u"nested too deeply"_s);
        ++_depth;
        Rule rule = isNegated ? Rule::negated(negation()) : any();
        --_depth;
        if (!_mistake && !isNegated && !_lexer.takeSymbol(")"_L1))
            refuse(u"AND, OR or a closing parenthesis was expected"_s, Wanted::Connective);
        return rule;
    }

    Rule condition()
    {
        Rule rule;
        for (const Subject &condition : kConditionWords) {
            if (_lexer.takeWord(condition.word))
                return {.kind = condition.kind};
        }
        if (_lexer.isBracketNext())
            return name(rule);
        for (const Subject &subject : kSubjects) {
            if (_lexer.takeWord(subject.word)) {
                rule.kind = subject.kind;
                return comparison(rule);
            }
        }
        return refuse(
            u"fileType, parameterName, parameterValue, [SECTION/NAME], failed or private was expected"_s,
            Wanted::Condition);
    }

    Rule name(Rule &rule)
    {
        const qsizetype place = _lexer.position();
        const auto name = _lexer.takeBracketed();
        if (!name)
            return refuseAt(place, u"this bracket is not closed"_s);
        rule.kind = Rule::Kind::Parameter;
        rule.parameter = *name;
        if (!rule.parameter.contains(u'/'))
            return refuseAt(place, u"a parameter is named by section and name, as [Video/Width]"_s);
        return comparison(rule);
    }

    std::optional<Rule::Comparison> takeComparison()
    {
        if (_lexer.takeWord("IS"_L1))
            return _lexer.takeWord("MISSING"_L1) ? std::optional(IsMissing) : std::nullopt;
        for (const Sign &sign : kWords) {
            if (_lexer.takeWord(sign.text))
                return sign.comparison;
        }
        for (const Sign &sign : kSymbols) {
            if (_lexer.takeSymbol(sign.text))
                return sign.comparison;
        }
        return std::nullopt;
    }

    Rule comparison(Rule &rule)
    {
        const qsizetype place = _lexer.position();
        const auto comparison = takeComparison();
        if (!comparison) {
            refuseAt(place, u"a comparison such as = or CONTAINS was expected"_s, Wanted::Comparison);
            _mistake->subject = rule.kind;
            return {};
        }
        rule.comparison = *comparison;
        if (!isAllowed(rule.kind, *comparison))
            return refuseAt(
                place,
                rule.kind == Rule::Kind::FileType
                    ? u"fileType can be compared by = and !="_s
                    : u"names and values of any parameter can be compared by =, != and CONTAINS"_s);
        if (*comparison != IsMissing)
            rule.value = value(rule);
        if (!_mistake && *comparison == Within) {
            if (!_lexer.takeSymbol(".."_L1))
                return refuse(u"the end of the range was expected, as in 100..400"_s);
            rule.upTo = value(rule);
        }
        return std::move(rule);
    }

    RuleValue value(const Rule &rule)
    {
        const qsizetype place = _lexer.position();
        RuleValue value;
        if (_lexer.isQuoteNext()) {
            auto text = _lexer.takeQuoted();
            if (!text)
                refuseAt(place, u"this quote is not closed"_s);
            else
                value.text = *std::move(text);
        } else {
            value = {_lexer.takeBare().toString(), true};
        }
        if (!_mistake)
            check(rule, value, place);
        return value;
    }

    void check(const Rule &rule, const RuleValue &value, qsizetype place)
    {
        if (rule.kind == Rule::Kind::FileType) {
            const bool isKnown = std::ranges::any_of(kFileTypes, [&](QLatin1String type) {
                return value.text.compare(type, Qt::CaseInsensitive) == 0;
            });
            if (value.isQuantity || !isKnown)
                refuseAt(place, u"'Video', 'Audio', 'Image' or 'Unknown' was expected"_s, Wanted::FileType);
        } else if (value.isQuantity && value.text.isEmpty()) {
            refuseAt(place, u"a value was expected"_s, Wanted::Value);
        } else if (value.isQuantity && (!takesQuantity(rule) || !isQuantity(value))) {
            refuseAt(place, u"a text stands in quotes"_s, Wanted::Value);
        } else if (isOfOrder(rule.comparison) && !isQuantity(value)) {
            refuseAt(place, u"a number, size, time or date was expected"_s, Wanted::Value);
        } else if (rule.comparison == Matches) {
            const QRegularExpression expression(value.text);
            if (!expression.isValid())
                refuseAt(place + 1 + expression.patternErrorOffset(), expression.errorString());
        }
    }

    static bool takesQuantity(const Rule &rule)
    {
        return rule.kind == Rule::Kind::Parameter && rule.comparison != Contains
            && rule.comparison != Matches;
    }

    static bool isQuantity(const RuleValue &value)
    {
        return quantityOf(value.text).kind != QuantityKind::Text;
    }

    Rule refuse(const QString &reason, Wanted wanted = Wanted::Nothing)
    {
        return refuseAt(_lexer.position(), reason, wanted);
    }

    Rule refuseAt(qsizetype place, const QString &reason, Wanted wanted = Wanted::Nothing)
    {
        if (!_mistake)
            _mistake = {place, reason, wanted};
        return {};
    }

    RuleLexer _lexer;
    std::optional<RuleMistake> _mistake; ///< the first one
    int _depth = 0;
};

QString doubled(QString text, QChar end)
{
    return text.replace(end, QString(2, end));
}

QString textOfValue(const RuleValue &value)
{
    return value.isQuantity ? value.text : quotedText(value.text);
}

QLatin1String signOf(Rule::Comparison comparison)
{
    if (comparison == IsMissing)
        return "IS MISSING"_L1;
    const auto *const word = std::ranges::find(kWords, comparison, &Sign::comparison);
    // Of several the last is the one to write.
    const auto symbol = std::find_if(kSymbols.rbegin(), kSymbols.rend(),
                                     [=](const Sign &sign) { return sign.comparison == comparison; });
    return word != kWords.end() ? word->text : symbol->text;
}

QString textOfCondition(const Rule &rule)
{
    if (rule.isWord())
        return std::ranges::find(kConditionWords, rule.kind, &Subject::kind)->word;
    const auto *const subject = std::ranges::find(kSubjects, rule.kind, &Subject::kind);
    QString text = subject != kSubjects.end() ? QString(subject->word) : bracketedName(rule.parameter);
    text += u' ' + signOf(rule.comparison);
    if (rule.comparison != IsMissing)
        text += u' ' + textOfValue(rule.value);
    if (rule.comparison == Within)
        text += ".."_L1 + textOfValue(rule.upTo);
    return text;
}

QString textOfSimplified(const Rule &rule);

/// A part of a rule, in parentheses where the text would say something else without.
QString textOfPart(const Rule &part, Rule::Kind whole)
{
    const bool isOpen = !part.isGroup() || (whole == Rule::Kind::Any && part.kind == Rule::Kind::All);
    return isOpen ? textOfSimplified(part) : u'(' + textOfSimplified(part) + u')';
}

QString textOfSimplified(const Rule &rule)
{
    if (rule.kind == Rule::Kind::Not)
        return "NOT "_L1 + textOfPart(rule.parts.front(), rule.kind);
    if (!rule.isGroup())
        return textOfCondition(rule);
    QStringList parts;
    for (const Rule &part : rule.parts)
        parts.append(textOfPart(part, rule.kind));
    return parts.join(rule.kind == Rule::Kind::All ? " AND "_L1 : " OR "_L1);
}

/// Blanks as wide as the text is in letters of one width.
QString blanksFor(QStringView text)
{
    QString blanks;
    for (const uint c : text.toUcs4()) {
        const auto code = static_cast<UChar32>(c);
        const int width = u_getIntPropertyValue(code, UCHAR_EAST_ASIAN_WIDTH);
        const bool isMark = u_getCombiningClass(code) != 0;
        blanks += c == u'\t' ? u"\t"_s
                             : QString(width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : !isMark, u' ');
    }
    return blanks;
}

} // namespace

QString RuleMistake::caretUnder(QStringView text) const
{
    const qsizetype start = position > 0 ? text.lastIndexOf(u'\n', position - 1) + 1 : 0;
    const qsizetype end = text.indexOf(u'\n', start);
    const QStringView line = end < 0 ? text.sliced(start) : text.sliced(start, end - start);
    const QStringView before = line.first(std::min(position - start, line.size()));
    return line.toString() + u'\n' + blanksFor(before) + u'^';
}

tl::expected<Rule, RuleMistake> parseRule(QStringView text)
{
    return RuleParser(text).parse();
}

QString textOfRule(const Rule &rule)
{
    return textOfSimplified(rule.simplified());
}

QString quotedText(const QString &text)
{
    if (text.contains(u'\'') && !text.contains(u'"'))
        return u'"' + text + u'"';
    return u'\'' + doubled(text, u'\'') + u'\'';
}

QString bracketedName(const QString &name)
{
    return u'[' + doubled(name, u']') + u']';
}

} // namespace quorvin
