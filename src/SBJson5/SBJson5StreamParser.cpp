// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/SBJson5StreamParser.h"

#include "SBJson5/SBJson5StreamParserDelegate.h"

#include <QChar>

#include <charconv>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <system_error>

namespace quorvin {

namespace {

constexpr int kNotExpected = 2; ///< codes of errors
constexpr int kMalformed = 3;

/// The longest text that is read as an integer; a minus sign counts.
constexpr qsizetype kMostIntegerLength = 20;
constexpr std::size_t kUsualDepth = 32;

QLatin1String tokenName(SBJson5Token token)
{
    using enum SBJson5Token;
    switch (token) {
    case ArrayOpen:
        return QLatin1String("start of array");
    case ArrayClose:
        return QLatin1String("end of array");
    case ValueSeparator:
        return QLatin1String("value separator");
    case ObjectOpen:
        return QLatin1String("start of object");
    case ObjectClose:
        return QLatin1String("end of object");
    case KeySeparator:
        return QLatin1String("key-value separator");
    case Boolean:
        return QLatin1String("boolean");
    case Null:
        return QLatin1String("null");
    case Integer:
    case Real:
        return QLatin1String("number");
    case String:
    case EncodedString:
        return QLatin1String("string");
    case Error:
    case EndOfData:
        break;
    }
    Q_UNREACHABLE();
    return {};
}

/// Of the type's range; what lies beyond becomes its end.
template <typename Number>
Number integerOf(QByteArrayView digits, Number end)
{
    Number value{};
    const auto [rest, problem] = std::from_chars(digits.begin(), digits.end(), value);
    return problem == std::errc() ? value : end;
}

/// Infinite beyond its range. A number has a byte behind it that ends it.
double realOf(QByteArrayView text)
{
    static const locale_t plain = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return ::strtod_l(text.begin(), nullptr, plain);
}

SBJson5Number numberOf(SBJson5Token token, QByteArrayView text)
{
    if (token == SBJson5Token::Real || text.size() > kMostIntegerLength)
        return {realOf(text), text};
    if (text.startsWith('-'))
        return {integerOf(text, std::numeric_limits<qint64>::min()), text};
    return {integerOf(text, std::numeric_limits<quint64>::max()), text};
}

char decodedLetter(char letter)
{
    switch (letter) {
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return letter;
    }
}

void appendUtf8(char32_t character, QByteArray &to)
{
    const auto tail
        = [&](unsigned shift) { return static_cast<char>(0x80U | ((character >> shift) & 0x3FU)); };
    if (character < 0x80) {
        to.append(static_cast<char>(character));
    } else if (character < 0x800) {
        to.append(static_cast<char>(0xC0U | (character >> 6U))).append(tail(0));
    } else if (character < 0x10000) {
        to.append(static_cast<char>(0xE0U | (character >> 12U))).append(tail(6)).append(tail(0));
    } else {
        to.append(static_cast<char>(0xF0U | (character >> 18U)));
        to.append(tail(12)).append(tail(6)).append(tail(0));
    }
}

/// Undoes the escapes of a string that the tokeniser has let pass.
void decodeStringToken(QByteArrayView token, QByteArray &to)
{
    to.resize(0);
    to.reserve(token.size());
    const auto quad = [&](qsizetype at) { return token.sliced(at, 4).toInt(nullptr, 16); };
    while (!token.isEmpty()) {
        const qsizetype plain = token.indexOf('\\');
        to.append(token.first(plain < 0 ? token.size() : plain));
        if (plain < 0)
            return;
        token = token.sliced(plain);
        qsizetype length = 2;
        if (token[1] != 'u') {
            to.append(decodedLetter(token[1]));
        } else {
            auto character = static_cast<char32_t>(quad(2));
            length = 6;
            if (QChar::isHighSurrogate(character)) {
                character = QChar::surrogateToUcs4(static_cast<char16_t>(character),
                                                   static_cast<char16_t>(quad(8)));
                length = 12;
            }
            appendUtf8(character, to);
        }
        token = token.sliced(length);
    }
}

} // namespace

SBJson5StreamParser::SBJson5StreamParser(SBJson5StreamParserDelegate &delegate, quint64 mostDepth)
    : _delegate(delegate), _mostDepth(mostDepth)
{
    _stateStack.reserve(kUsualDepth);
}

SBJson5ParserStatus SBJson5StreamParser::parse(QByteArrayView data)
{
    _tokeniser.appendData(data);
    while (!_stopped) {
        if (_state == State::Error)
            return SBJson5ParserStatus::Error;
        QByteArrayView text;
        const SBJson5Token token = _tokeniser.getToken(text);
        if (token == SBJson5Token::EndOfData)
            return statusAtEnd();
        if (token == SBJson5Token::Error)
            failWith(kMalformed, _tokeniser.error());
        else if ((rowOfState(_state).accepts & bitOf(token)) == 0)
            handleTokenNotExpectedHere(token);
        else
            act(token, text);
    }
    return SBJson5ParserStatus::Stopped;
}

SBJson5ParserStatus SBJson5StreamParser::statusAtEnd() const
{
    const bool isWhole = _state == State::Complete || _state == State::ScalarComplete;
    return isWhole ? SBJson5ParserStatus::Complete : SBJson5ParserStatus::WaitingForData;
}

void SBJson5StreamParser::failWith(int code, const QString &text)
{
    _state = State::Error;
    _delegate.parserFoundError({kSBJson5ErrorDomain, code, text});
}

void SBJson5StreamParser::handleTokenNotExpectedHere(SBJson5Token token)
{
    failWith(kNotExpected,
             QLatin1String("Token '") + tokenName(token) + QLatin1String("' not expected ")
                 + rowOfState(_state).name);
}

void SBJson5StreamParser::act(SBJson5Token token, QByteArrayView text)
{
    using enum SBJson5Token;
    switch (token) {
    case ArrayOpen:
        if (open(State::ArrayStart))
            _delegate.parserFoundArrayStart();
        return;
    case ObjectOpen:
        if (open(State::ObjectStart))
            _delegate.parserFoundObjectStart();
        return;
    case ArrayClose:
    case ObjectClose:
        _state = _stateStack.back();
        _stateStack.pop_back();
        transition(token);
        token == ArrayClose ? _delegate.parserFoundArrayEnd() : _delegate.parserFoundObjectEnd();
        return;
    case Boolean:
        _delegate.parserFoundBoolean(text.startsWith('t'));
        break;
    case Null:
        _delegate.parserFoundNull();
        break;
    case Integer:
    case Real:
        _delegate.parserFoundNumber(numberOf(token, text));
        break;
    case String:
        foundString(text);
        break;
    case EncodedString:
        decodeStringToken(text, _decoded);
        foundString(_decoded);
        break;
    default:
        break;
    }
    transition(token);
}

bool SBJson5StreamParser::open(State inside)
{
    if (_mostDepth != 0 && _stateStack.size() >= _mostDepth) {
        failWith(kMalformed, QStringLiteral("Input depth exceeds max depth of %1").arg(_mostDepth));
        return false;
    }
    _stateStack.push_back(_state);
    _state = inside;
    return true;
}

void SBJson5StreamParser::transition(SBJson5Token token)
{
    if (_state != State::Start) {
        _state = rowOfState(_state).next;
        return;
    }
    const bool isContainer = token == SBJson5Token::ArrayClose || token == SBJson5Token::ObjectClose;
    if (!isContainer)
        _state = State::ScalarComplete;
    else if (!_delegate.parserShouldSupportManyDocuments())
        _state = State::Complete;
}

void SBJson5StreamParser::foundString(QByteArrayView text)
{
    if (rowOfState(_state).needKey)
        _delegate.parserFoundObjectKey(text);
    else
        _delegate.parserFoundString(text);
}

} // namespace quorvin
