// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/RuleText.h"

#include "filter/RuleCompletion.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// Rules of every form, with texts that try the quotes.
class RandomRules {
public:
    Rule next(int depth = 3)
    {
        const int form = number(depth > 0 ? 7 : 4);
        if (form < 4)
            return condition();
        if (form == 6)
            return Rule::negated(next(depth - 1));
        std::vector<Rule> parts;
        for (int i = number(4); i >= 0; --i)
            parts.push_back(next(depth - 1));
        return form == 4 ? Rule::all(parts) : Rule::any(parts);
    }

    QString text(const QString &letters)
    {
        QString text;
        for (int i = number(12); i > 0; --i)
            text += letters[number(static_cast<int>(letters.size()))];
        return text;
    }

private:
    int number(int end) { return std::uniform_int_distribution(0, end - 1)(_random); }

    Rule condition()
    {
        using enum Rule::Comparison;
        const QString any = text(u"a'\"[]/ .()\\\n\u00e9AND"_s);
        switch (number(5)) {
        case 0:
            return number(2) == 0 ? Rule::failed() : Rule::givesAway();
        case 1:
            return Rule::fileType(kFileTypes[static_cast<std::size_t>(number(4))], NotEqual);
        case 2:
            return Rule::anyParameter(Rule::Kind::ParameterValue, Contains, any);
        case 3:
            return number(2) == 0 ? Rule::without(u"EXIF"_s, any) : Rule::withValue(u"EXIF"_s, any, any);
        default:
            Rule rule{.kind = Rule::Kind::Parameter, .parameter = u"A/B"_s, .value = {u"1 509 kb/s"_s, true}};
            rule.comparison = static_cast<Rule::Comparison>(number(6));
            if (number(2) == 0) {
                rule.comparison = Within;
                rule.upTo = {u"88.3 KB (9 bytes)"_s};
            }
            return rule;
        }
    }

    std::mt19937 _random{7};
};

} // namespace

TEST(RuleText, WhatIsWrittenIsReadAsTheSameRule)
{
    RandomRules rules;
    for (int i = 0; i < 2000; ++i) {
        const Rule rule = rules.next();
        const QString text = textOfRule(rule);
        const auto read = parseRule(text);
        ASSERT_TRUE(read) << text.toStdString() << read.error().reason.toStdString();
        ASSERT_EQ(*read, rule.simplified()) << text.toStdString();
    }
}

TEST(RuleText, NoTextIsTooMuchForTheParser)
{
    RandomRules rules;
    for (int i = 0; i < 5000; ++i) {
        const QString text
            = rules.next().isEmpty() ? QString() : rules.text(u"()[]'\"=<>! ANDORNTfileTyp/.1ms"_s);
        const auto read = parseRule(text);
        if (read)
            EXPECT_EQ(parseRule(textOfRule(*read)), read) << text.toStdString();
        else
            EXPECT_TRUE(read.error().position >= 0 && read.error().position <= text.size());
    }
    EXPECT_FALSE(parseRule(QString(100'000, u'(')));
    EXPECT_FALSE(parseRule(u"NOT "_s.repeated(100'000)));
    EXPECT_TRUE(parseRule(u"("_s.repeated(kMostRuleDepth) + u"failed"_s + u")"_s.repeated(kMostRuleDepth)));
}

TEST(RuleText, ConnectivesBindAsTold)
{
    const auto meaning = [](const QString &text) { return textOfRule(parseRule(text).value()); };
    EXPECT_EQ(parseRule(u"failed or failed AND NOT failed"_s),
              Rule::any({Rule::failed(), Rule::all({Rule::failed(), Rule::negated(Rule::failed())})}));
    EXPECT_EQ(meaning(u"(failed OR failed) and failed"_s), u"(failed OR failed) AND failed"_s);
    EXPECT_EQ(meaning(u" ( (FILETYPE=='video') ) "_s), u"fileType = 'video'"_s);
    EXPECT_EQ(meaning(u"[A/B]in 1/500 s..1/60 AND failed"_s), u"[A/B] IN 1/500 s..1/60 AND failed"_s);
    EXPECT_EQ(meaning(u"\n"_s), QString());
}

TEST(RuleText, MistakesPointAtTheirPlace)
{
    struct Case {
        QString text;
        QString caret;
    };
    for (const Case &one : {
             Case{u"fileType 'Video'"_s, u"         ^"_s},
             {u"fileType = 'Film'"_s, u"           ^"_s},
             {u"fileType < 'Video'"_s, u"         ^"_s},
             {u"parameterName MATCHES 'a'"_s, u"              ^"_s},
             {u"[Video] = 1"_s, u"^"_s},
             {u"[Video/Width = 1"_s, u"^"_s},
             {u"[Video/Width] = wide"_s, u"                ^"_s},
             {u"[Video/Width] < 'wide'"_s, u"                ^"_s},
             {u"[Video/Width] IN 100"_s, u"                    ^"_s},
             {u"[A/B] MATCHES 'a(b'"_s, u"                  ^"_s},
             {u"[A/B] = 'open"_s, u"        ^"_s},
             {u"failed failed"_s, u"       ^"_s},
             {u"(failed"_s, u"       ^"_s},
             {u"failed AND"_s, u"          ^"_s},
             {u"failed)"_s, u"      ^"_s},
             {u"video"_s, u"^"_s},
             {u"failed OR\n[\u6771/\u4eac] ?"_s, u"        ^"_s},
         }) {
        const auto read = parseRule(one.text);
        ASSERT_FALSE(read) << one.text.toStdString();
        EXPECT_EQ(read.error().caretUnder(one.text), one.text.section(u'\n', -1) + u'\n' + one.caret)
            << read.error().reason.toStdString();
    }
}

TEST(RuleCompletion, OffersWhatCanStandThere)
{
    const QStringList names{u"Audio/Language"_s, u"Text/Language"_s, u"Video/Width"_s};
    struct Case {
        const char *typed;
        qsizetype position;
        QStringList words;
    };
    for (const Case &one : {
             Case{"fileType", 0, {u"fileType"_s}},
             {"[wi", 0, {u"[Video/Width]"_s}},
             {"failed AND lan", 11, {u"[Audio/Language]"_s, u"[Text/Language]"_s}},
             {"NOT par", 4, {u"parameterName"_s, u"parameterValue"_s}},
             {"fileType ", 9, {u"="_s, u"!="_s}},
             {"[A/B] I", 6, {u"IN"_s, u"IS MISSING"_s}},
             {"fileType = 'a", 11, {u"'Audio'"_s}},
             {"fileType = ", 11, {u"'Video'"_s, u"'Audio'"_s, u"'Image'"_s, u"'Unknown'"_s}},
             {"(failed ", 8, {u"AND"_s, u"OR"_s}},
             {"failed failed a", 14, {}},
             {"[A/B] = 'wi", 8, {}},
         }) {
        const QString text = QString::fromUtf8(one.typed);
        const RuleCompletion completion = completeRule(text + u" tail"_s, text.size(), names);
        EXPECT_EQ(completion, (RuleCompletion{one.position, text.size() - one.position, one.words}))
            << one.typed;
    }
}

} // namespace quorvin
