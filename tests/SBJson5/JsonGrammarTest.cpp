// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/Json5ParserHandler.h"
#include "SBJson5/SBJson5StreamParser.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QStringDecoder>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;
using Status = SBJson5ParserStatus;

/// Status, reason and the first text of a list, of a document that comes in two pieces.
struct Reading {
    Status status{};
    QString error;
    std::optional<QByteArray> text;

    bool operator==(const Reading &) const = default;
};

Reading readingOf(QByteArrayView first, QByteArrayView second)
{
    Json5ParserHandler handler;
    SBJson5StreamParser parser(handler);
    parser.parse(first);
    Reading reading{parser.parse(second), handler.error(), {}};
    const auto *list = std::get_if<const Json5Array *>(&handler.data());
    if (list && !(*list)->elements.empty()) {
        if (const auto *text = std::get_if<QByteArrayView>(&(*list)->elements.front()))
            reading.text = text->toByteArray();
    }
    return reading;
}

/// Reads it whole, and cut in two somewhere, which must come to the same.
Reading readingOf(const QByteArray &document)
{
    Reading whole = readingOf(document, {});
    const qsizetype cut = qChecksum(document) % (document.size() + 1);
    EXPECT_EQ(readingOf(document.first(cut), document.sliced(cut)), whole)
        << document.toPercentEncoding().constData() << " cut at " << cut;
    return whole;
}

/// As a document of which all has come: a number ends with the byte behind it.
bool isTaken(const QByteArray &document)
{
    return readingOf(document + '\n').status == Status::Complete;
}

std::string shown(const QByteArray &document)
{
    return document.toPercentEncoding("[]{}\",:").toStdString();
}

/// Every sequence of these symbols, up to that length, behind what there is.
void forEachSequence(const std::vector<QByteArray> &symbols, int longest, const QByteArray &begin,
                     const std::function<void(const QByteArray &)> &use)
{
    use(begin);
    if (longest == 0)
        return;
    for (const QByteArray &symbol : symbols)
        forEachSequence(symbols, longest - 1, begin + symbol, use);
}

} // namespace

TEST(JsonGrammar, NumbersAreThoseOfTheGrammar)
{
    static const QRegularExpression grammar(uR"(^-?(0|[1-9]\d*)(\.\d+)?([eE][+-]?\d+)?$)"_s);
    forEachSequence({"-", "+", "0", "7", ".", "e", "E"}, 5, {}, [](const QByteArray &number) {
        const bool isNumber = number.isEmpty() || grammar.match(QLatin1String(number)).hasMatch();
        EXPECT_EQ(isTaken('[' + number + ']'), isNumber) << number.constData();
    });
    for (const char *number :
         {"-12.50e+007", "0.0E-0", "123456789012345678901234567890", "1e99999", "-1e-99999"})
        EXPECT_TRUE(isTaken('[' + QByteArray(number) + ']')) << number;
    for (const char *word : {"NaN", "Infinity", "-Infinity", "0x1F", "1_000", "1,000.", "\xEF\xBC\x91", "1a",
                             "0b1", "- 1", "1 .5"})
        EXPECT_FALSE(isTaken('[' + QByteArray(word) + ']')) << word;
}

TEST(JsonGrammar, StructureIsThatOfAnotherParser)
{
    const std::vector<QByteArray> symbols{"[", "]", "{", "}", ",", ":", "\"a\"", "1", " "};
    for (const char *begin : {"[", "{", "[1,", "{\"a\":1,"}) {
        forEachSequence(symbols, 4, begin, [](const QByteArray &text) {
            EXPECT_EQ(isTaken(text), !QJsonDocument::fromJson(text).isNull()) << text.constData();
        });
    }
    for (const char *text : {"\"\"", "-0.5\n", "\r\n\t true", "null "})
        EXPECT_TRUE(isTaken(text)) << text;
    for (const char *text : {"",
                             " ",
                             "[]]",
                             "{}}",
                             "1 2",
                             "[1}",
                             "[1 true]",
                             "[\"a\":1]",
                             "/* */[]",
                             "// x\n[]",
                             "[] #",
                             "['a']",
                             "[a]",
                             "[TRUE]",
                             "[truetrue]",
                             "[nul]",
                             "{a:1}",
                             "{null:1}",
                             "{\"a\"}",
                             "{\"a\":1 \"b\":2}",
                             "\xEF\xBB\xBF[]",
                             "\xFE\xFF[",
                             "[\xC2\xA0]",
                             "[\f]",
                             "[\v]",
                             "[\xE2\x81\xA0]",
                             "*",
                             "[\\u0031]",
                             "[\"a\",\n4\n,1,"})
        EXPECT_FALSE(isTaken(text)) << text;
}

TEST(JsonGrammar, BytesOfStringsAreThoseOfUtf8)
{
    const QByteArray followers("\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xFF");
    std::vector<QByteArray> symbols;
    for (const char byte : followers)
        symbols.push_back(QByteArray(1, byte));
    for (int lead = 0x80; lead <= 0xFF; ++lead) {
        forEachSequence(symbols, 3, QByteArray(1, static_cast<char>(lead)), [](const QByteArray &bytes) {
            QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
            const QString text = decoder(bytes);
            const Reading reading = readingOf("[\"" + bytes + "\"]", {});
            EXPECT_EQ(reading.status == Status::Complete, !decoder.hasError()) << shown(bytes);
            if (!decoder.hasError()) {
                EXPECT_EQ(QString::fromUtf8(reading.text.value_or("none")), text) << shown(bytes);
            }
        });
    }
    for (int byte = 0; byte < 0x80; ++byte) {
        const QByteArray one(1, static_cast<char>(byte));
        const bool isPlain = byte >= 0x20 && byte != '"' && byte != '\\';
        EXPECT_EQ(isTaken("[\"" + one + "\"]"), isPlain) << byte;
        EXPECT_EQ(isTaken("[\"\\" + one + "\"]"), QByteArrayView("bfnrt\"/\\").contains(one)) << byte;
        EXPECT_EQ(isTaken('[' + one + ']'), QByteArrayView("0123456789 \t\r\n").contains(one)) << byte;
    }
}

TEST(JsonGrammar, EscapedUnitsAreCharacters)
{
    constexpr std::array<char16_t, 9> kUnits{0, 0x41, 0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFF};
    const auto escaped
        = [](char16_t unit) { return "\\u" + QByteArray::number(unit, 16).rightJustified(4, '0'); };
    for (const char16_t first : kUnits) {
        for (const char16_t second : kUnits) {
            const std::array<QChar, 2> units{QChar(first), QChar(second)};
            const QString text(units.data(), 2);
            const QByteArray told = escaped(first) + escaped(second);
            const Reading reading = readingOf("[\"" + told + "\"]");
            EXPECT_EQ(reading.status == Status::Complete, text.isValidUtf16()) << told.constData();
            if (text.isValidUtf16()) {
                EXPECT_EQ(reading.text, text.toUtf8()) << told.constData();
            }
        }
        const bool isWhole = !QChar(first).isSurrogate();
        EXPECT_EQ(isTaken("[\"" + escaped(first) + "\"]"), isWhole) << int(first);
        EXPECT_EQ(isTaken("[\"" + escaped(first) + "x\\\\ \\n\"]"), isWhole) << int(first);
        EXPECT_FALSE(isTaken("[\"" + escaped(first).chopped(1) + "\"]")) << int(first);
    }
    EXPECT_FALSE(isTaken("[\"\\ud83d\\"));
    EXPECT_FALSE(isTaken("[\"\\U0041\"]"));
}

} // namespace quorvin
