// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/SBJson5Parser.h"

#include "SBJson5/Json5ParserHandler.h"
#include "SBJson5/SBJson5StreamParser.h"
#include "SBJson5/SBJson5Writer.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;
using Status = SBJson5ParserStatus;

/// Writes down what a stream parser tells, a word an event.
struct Listener final : SBJson5StreamParserDelegate {
    QByteArray heard;
    bool manyDocuments = false;

    void say(QByteArrayView what) { heard += ' ' + what.toByteArray(); }
    void parserFoundObjectStart() override { say("{"); }
    void parserFoundObjectKey(QByteArrayView key) override { say('k' + key.toByteArray()); }
    void parserFoundObjectEnd() override { say("}"); }
    void parserFoundArrayStart() override { say("["); }
    void parserFoundArrayEnd() override { say("]"); }
    void parserFoundBoolean(bool value) override { say(value ? "true" : "false"); }
    void parserFoundNull() override { say("null"); }
    void parserFoundNumber(const SBJson5Number &number) override
    {
        constexpr std::array<const char *, 3> kTypes{"i", "u", "d"};
        say(kTypes.at(number.value.index())
            + std::visit([](auto value) { return QByteArray::number(value); }, number.value));
    }
    void parserFoundString(QByteArrayView text) override { say('s' + text.toByteArray()); }
    void parserFoundError(const SBJson5Error &error) override
    {
        say(QByteArray::number(error.code) + ' ' + error.description.toUtf8());
    }
    bool parserShouldSupportManyDocuments() const override { return manyDocuments; }
};

QByteArray numberOf(Status status)
{
    return QByteArray::number(static_cast<int>(status));
}

/// The last status and what was heard of a text that comes in these pieces.
QByteArray outcomeOf(const std::vector<QByteArrayView> &pieces, bool manyDocuments = false)
{
    Listener listener;
    listener.manyDocuments = manyDocuments;
    SBJson5StreamParser parser(listener);
    Status status{};
    for (const QByteArrayView piece : pieces)
        status = parser.parse(piece);
    return numberOf(status) + listener.heard;
}

struct Case {
    QByteArray text;
    QByteArray outcome;
};

const std::vector<Case> &wellFormedTexts()
{
    static const std::vector<Case> cases{
        {"[] \t\r\n", "0 [ ]"},
        {"{\"a\":[1,{}],\"\":null}", "0 { ka [ u1 { } ] k null }"},
        {"[true,false,null]", "0 [ true false null ]"},
        {"true", "0 true"},
        {"\"a\"", "0 sa"},
        {"7", "2"},
        {"7 ", "0 u7"},
        {"[0,-0,-12,99999999999999999999,-9223372036854775809,18446744073709551615]",
         "0 [ u0 i0 i-12 u18446744073709551615 i-9223372036854775808 u18446744073709551615 ]"},
        {"[111111111111111111111,1.5,2E+2,-25e-1,1e999]", "0 [ d1.11111e+20 d1.5 d200 d-2.5 dinf ]"},
        {"[\"\\b\\f\\n\\r\\t\\\"\\/\\\\\"]", "0 [ s\b\f\n\r\t\"/\\ ]"},
        {"[\"\\u0041\\u00e9\\u20AC\\ud83d\\uDE00\"]", "0 [ sA\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80 ]"},
        {"[\"\x7F\xC2\x80\xE0\xA0\x80\xED\x9F\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\"]",
         "0 [ s\x7F\xC2\x80\xE0\xA0\x80\xED\x9F\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF ]"},
        {"[\"a longer run of letters than eight\\n, twice over\"]",
         "0 [ sa longer run of letters than eight\n, twice over ]"},
        {"{\"a\"", "2 { ka"},
        {"[-", "2 ["},
        {"[tru", "2 ["},
        {"[\"\\ud83d\\u", "2 ["},
        {"", "2"},
    };
    return cases;
}

const std::vector<Case> &malformedTexts()
{
    static const std::vector<Case> cases{
        {"[1,]", "3 [ u1 2 Token 'end of array' not expected as array value"},
        {"{\"a\":1,}", "3 { ka u1 2 Token 'end of object' not expected in place of object key"},
        {"{1:2}", "3 { 2 Token 'number' not expected at beginning of object"},
        {"{\"a\",", "3 { ka 2 Token 'value separator' not expected after object key"},
        {"{\"a\":}", "3 { ka 2 Token 'end of object' not expected as object value"},
        {"{\"a\":1:", "3 { ka u1 2 Token 'key-value separator' not expected after object value"},
        {"[1 \"x\"", "3 [ u1 2 Token 'string' not expected after array value"},
        {"[,", "3 [ 2 Token 'value separator' not expected at array start"},
        {"{}{", "3 { } 2 Token 'start of object' not expected after complete json"},
        {"null true", "3 null 2 Token 'boolean' not expected (null)"},
        {"]", "3 2 Token 'end of array' not expected <aaiie!>"},
        {"01", "3 3 Leading zero is illegal in number at index 1"},
        {"[-01", "3 [ 3 Leading zero is illegal in number at index 3"},
        {"[- ", "3 [ 3 No digits after initial minus at index 2"},
        {"[1.e", "3 [ 3 No digits after decimal point at index 3"},
        {"[1e- ", "3 [ 3 No digits in exponent at index 4"},
        {"+1", "3 3 Leading + is illegal in number at index 0"},
        {"[truf]", "3 [ 3 Expected 'true' after initial 't' at index 1"},
        {"[nulx]", "3 [ 3 Expected 'null' after initial 'n' at index 1"},
        {"  'a'", "3 3 Illegal start of token ['] at index 2"},
        {"\xEF\xBB\xBF[]", "3 3 Illegal start of token [\xC3\xAF] at index 0"},
        {"[\"a\x1F\"", "3 [ 3 Unescaped control character [0x1F] in string at index 3"},
        {"[\"\\x", "3 [ 3 Illegal escape character [0x78] at index 3"},
        {"[\"\\u00g0", "3 [ 3 Invalid hex quad at index 4"},
        {"[\"\\ud800\\n1234", "3 [ 3 Missing low character in surrogate pair at index 8"},
        {"[\"\\ud800\\u0041", "3 [ 3 Invalid low character in surrogate pair at index 8"},
        {"[\"\\udc00", "3 [ 3 Invalid high character in surrogate pair at index 4"},
        {"[\"\x80", "3 [ 3 Unexpected UTF-8 continuation byte [0x80] at index 2"},
        {"[\"\xC1\x81", "3 [ 3 Illegal UTF-8 byte [0xC1] at index 2"},
        {"[\"\xF5", "3 [ 3 Illegal UTF-8 byte [0xF5] at index 2"},
        {"[\"\xE2\x82\"", "3 [ 3 Missing UTF-8 continuation byte; found [0x22] at index 4"},
        {"[\"\xE0\x80\x80", "3 [ 3 Illegal overlong encoding [0xE0 0x80 0x80] at index 2"},
        {"[\"\xF0\x80\x80\x80", "3 [ 3 Illegal overlong encoding [0xF0 0x80 0x80 0x80] at index 2"},
        {"[\"\xED\xA0\x80", "3 [ 3 Illegal Unicode code point [0xD800] at index 2"},
        {"[\"\xF4\x90\x80\x80", "3 [ 3 Illegal Unicode code point [0x110000] at index 2"},
    };
    return cases;
}

} // namespace

TEST(SBJson5Parser, TellsWhatItFindsAndWhatIsWrong)
{
    for (const auto *cases : {&wellFormedTexts(), &malformedTexts()}) {
        for (const Case &row : *cases)
            EXPECT_EQ(outcomeOf({row.text}), row.outcome) << row.text.constData();
    }
}

TEST(SBJson5Parser, PiecesCutAnywhereComeToTheSame)
{
    for (const auto *cases : {&wellFormedTexts(), &malformedTexts()}) {
        for (const Case &row : *cases) {
            const QByteArrayView text(row.text);
            std::vector<QByteArrayView> bytes{QByteArrayView()};
            for (qsizetype at = 0; at < text.size(); ++at) {
                EXPECT_EQ(outcomeOf({text.first(at), text.sliced(at)}), row.outcome) << row.text.constData();
                bytes.push_back(text.sliced(at, 1));
            }
            EXPECT_EQ(outcomeOf(bytes), row.outcome) << row.text.constData();
        }
    }
}

TEST(SBJson5Parser, DocumentsFollowEachOtherWhereTheyMay)
{
    EXPECT_EQ(outcomeOf({"{}[1", "]"}, true), "2 { } [ u1 ]");
    // A scalar ends the input all the same.
    EXPECT_EQ(outcomeOf({"[]1 2 "}, true), "3 [ ] u1 2 Token 'number' not expected (null)");
}

TEST(SBJson5Parser, AStoppedParserTakesNoMore)
{
    Listener listener;
    SBJson5StreamParser parser(listener);
    parser.parse("[1,");
    parser.stop();
    EXPECT_EQ(parser.parse("2]"), Status::Stopped);
    EXPECT_EQ(listener.heard, " [ u1");
}

TEST(SBJson5Parser, ABoundRefusesAMillionBrackets)
{
    const QByteArray brackets(1'000'000, '[');
    Json5ParserHandler handler;
    SBJson5StreamParser bounded(handler, 1000);
    EXPECT_EQ(bounded.parse(brackets), Status::Error);
    EXPECT_EQ(handler.error(), u"Input depth exceeds max depth of 1000"_s);

    Listener listener;
    SBJson5StreamParser boundless(listener);
    EXPECT_EQ(boundless.parse(brackets + QByteArray(1'000'000, ']')), Status::Complete);

    QString error;
    SBJson5Parser parser([](const QVariant &, bool &) {}, false, false, 10'000'000,
                         [&](const SBJson5Error &problem) { error = problem.description; });
    EXPECT_EQ(parser.parse(brackets), Status::Stopped);
    EXPECT_EQ(error, u"Input depth exceeds max depth of 4096"_s);
}

TEST(SBJson5Parser, HandsOutWholeValues)
{
    QVariantList values;
    QStringList errors;
    const auto collect = [&](const QVariant &value, bool &stop) {
        values.append(value);
        stop = value == QVariant(u"stop"_s);
    };
    const auto complain = [&](const SBJson5Error &error) { errors.append(error.description); };

    auto one = SBJson5Parser::parserWithBlock(collect, complain);
    EXPECT_EQ(one.parse(R"({"b":[1,-2,{"c":null}],"a":"x","b2":2.5,"a":true})"), Status::Complete);
    ASSERT_EQ(values.size(), 1);
    EXPECT_EQ(SBJson5Writer().stringWithObject(values.takeFirst()),
              u"{\"a\":true,\"b\":[1,-2,{\"c\":null}],\"b2\":2.5}"_s);

    auto many = SBJson5Parser::multiRootParserWithBlock(collect, complain);
    EXPECT_EQ(many.parse("[1][[2]]"), Status::WaitingForData);
    EXPECT_EQ(std::exchange(values, {}),
              QVariantList({QVariantList{1ULL}, QVariantList{QVariantList{2ULL}}}));

    auto unwrapped = SBJson5Parser::unwrapRootArrayParserWithBlock(collect, complain);
    EXPECT_EQ(unwrapped.parse(R"([1,["a"],"stop",2])"), Status::Stopped);
    EXPECT_EQ(std::exchange(values, {}), QVariantList({1ULL, QVariantList{u"a"_s}, u"stop"_s}));
    EXPECT_TRUE(errors.isEmpty());

    EXPECT_EQ(SBJson5Parser::parserWithBlock(collect, complain).parse("[}"), Status::Error);
    EXPECT_EQ(errors, QStringList(u"Token 'end of object' not expected at array start"_s));
}

namespace {

/// The keys of an object, sorted; "-" for any other value.
QString keysOf(const Json5Value &value)
{
    const auto *object = std::get_if<const Json5Object *>(&value);
    if (!object)
        return u"-"_s;
    QStringList keys;
    for (const Json5Member &member : (*object)->members)
        keys.append(QString::fromUtf8(member.key));
    keys.sort();
    return keys.join(u' ');
}

const Json5Value &firstOf(const Json5Value &list)
{
    return std::get<const Json5Array *>(list)->elements.front();
}

} // namespace

TEST(Json5ParserHandler, KeepsTheOrderOfKeysAndLosesWhatFollowsAList)
{
    Json5ParserHandler handler;
    SBJson5StreamParser parser(handler);
    ASSERT_EQ(parser.parse(R"([{"z":{"val":1},"a":{"val":[1,"x"],"desc":"A"},"b":{"val":2},"z":3}])"),
              Status::Complete);
    EXPECT_EQ(handler.keysOrder(), (std::vector<QByteArrayView>{"z", "a", "b", "z"}));
    const Json5Value &root = firstOf(handler.data());
    EXPECT_EQ(keysOf(root), u"a z"_s);
    const auto *object = std::get<const Json5Object *>(root);
    EXPECT_EQ(keysOf(*object->find("a")), u"b desc val z"_s);
    EXPECT_EQ(keysOf(*object->find("z")), u"val"_s);
    EXPECT_EQ(object->find("b"), nullptr);
}

TEST(Json5ParserHandler, DropsWhatFollowsAnObjectThatHeldOne)
{
    Json5ParserHandler handler;
    SBJson5StreamParser parser(handler);
    ASSERT_EQ(parser.parse(R"({"a":{"b":{"c":{}}},"d":1})"), Status::Complete);
    EXPECT_EQ(keysOf(handler.data()), u"a"_s);
    EXPECT_EQ(handler.keysOrder(), std::vector<QByteArrayView>{"b"});
}

} // namespace quorvin
