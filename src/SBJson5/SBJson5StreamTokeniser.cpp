// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/SBJson5StreamTokeniser.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

// What a step of a string came to, in place of the position behind it.
constexpr qsizetype kMoreNeeded = -1;
constexpr qsizetype kRefused = -2;

constexpr qsizetype kQuadLength = 4; ///< hexadecimal digits of an escape

bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

QString hex(quint32 byte)
{
    return QStringLiteral("0x") + QString::number(byte, 16).toUpper().rightJustified(2, u'0');
}

/// A text with the byte in brackets.
QString about(const char *text, quint8 byte)
{
    return QLatin1String(text) + QLatin1String(" [") + hex(byte) + u']';
}

constexpr quint64 everyByte(quint8 value)
{
    return 0x0101010101010101U * value;
}

/// A high bit for each byte of eight that ends a run of plain ASCII; bytes above such a one may have theirs
/// set too.
quint64 endsOfRun(quint64 bytes)
{
    const auto equal = [&](quint8 value) {
        const quint64 difference = bytes ^ everyByte(value);
        return (difference - everyByte(1)) & ~difference;
    };
    const quint64 below = (bytes - everyByte(0x20)) & ~bytes;
    return (below | equal('"') | equal('\\') | bytes) & everyByte(0x80);
}

bool endsRun(char byte)
{
    const auto value = static_cast<quint8>(byte);
    return value < 0x20 || value >= 0x80 || byte == '"' || byte == '\\';
}

const char *endOfRun(const char *from, const char *end)
{
    for (; end - from >= 8; from += 8) {
        quint64 bytes = 0;
        std::memcpy(&bytes, from, sizeof bytes);
        if (endsOfRun(bytes) != 0)
            break;
    }
    return std::find_if(from, end, endsRun);
}

std::optional<char32_t> quadAt(QByteArrayView data, qsizetype at)
{
    char32_t value = 0;
    for (qsizetype i = 0; i < kQuadLength; ++i) {
        const char digit = data[at + i];
        const char letter = static_cast<char>(digit | 0x20);
        if (isDigit(digit))
            value = value * 16 + static_cast<char32_t>(digit - '0');
        else if (letter >= 'a' && letter <= 'f')
            value = value * 16 + static_cast<char32_t>(letter - 'a' + 10);
        else
            return std::nullopt;
    }
    return value;
}

/// Of a sequence that begins with this byte; 0 when none does.
qsizetype lengthOfSequence(quint8 first)
{
    if (first < 0xC2 || first > 0xF4)
        return 0;
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

QString overlong(QByteArrayView sequence)
{
    QStringList bytes;
    for (const char byte : sequence)
        bytes.append(hex(static_cast<quint8>(byte)));
    return QLatin1String("Illegal overlong encoding [") + bytes.join(u' ') + u']';
}

} // namespace

void SBJson5StreamTokeniser::appendData(QByteArrayView bytes)
{
    if (_index > 0) {
        _data.remove(0, _index);
        _offset += static_cast<quint64>(_index);
        _scanned = std::max<qsizetype>(_scanned - _index, 0);
        _index = 0;
    }
    _data.append(bytes);
}

SBJson5Token SBJson5StreamTokeniser::getToken(QByteArrayView &token)
{
    using enum SBJson5Token;
    const auto *const begin = _data.cbegin();
    _index = std::find_if_not(begin + _index, _data.cend(), isBlank) - begin;
    if (_index == _data.size())
        return EndOfData;
    const char first = _data.at(_index);
    switch (first) {
    case '[':
        return single(ArrayOpen, token);
    case ']':
        return single(ArrayClose, token);
    case ',':
        return single(ValueSeparator, token);
    case '{':
        return single(ObjectOpen, token);
    case '}':
        return single(ObjectClose, token);
    case ':':
        return single(KeySeparator, token);
    case 't':
        return keyword("true", Boolean, token);
    case 'f':
        return keyword("false", Boolean, token);
    case 'n':
        return keyword("null", Null, token);
    case '"':
        return string(token);
    case '+':
        return fail(_index, QStringLiteral("Leading + is illegal in number"));
    default:
        if (first == '-' || isDigit(first))
            return number(token);
        return fail(_index, QLatin1String("Illegal start of token [") + QLatin1Char(first) + u']');
    }
}

SBJson5Token SBJson5StreamTokeniser::fail(qsizetype at, const QString &reason)
{
    _index = at;
    _error = reason + QLatin1String(" at index ") + QString::number(_offset + static_cast<quint64>(at));
    return SBJson5Token::Error;
}

SBJson5Token SBJson5StreamTokeniser::single(SBJson5Token kind, QByteArrayView &token)
{
    token = QByteArrayView(_data).sliced(_index, 1);
    ++_index;
    return kind;
}

SBJson5Token SBJson5StreamTokeniser::keyword(QByteArrayView word, SBJson5Token kind, QByteArrayView &token)
{
    if (_data.size() - _index < word.size())
        return SBJson5Token::EndOfData;
    token = QByteArrayView(_data).sliced(_index, word.size());
    if (token != word) {
        const auto text = QString::fromLatin1(word);
        return fail(_index, QStringLiteral("Expected '%1' after initial '%2'").arg(text, text.first(1)));
    }
    _index += word.size();
    return kind;
}

SBJson5Token SBJson5StreamTokeniser::string(QByteArrayView &token)
{
    qsizetype at = _scanned;
    // Those of an earlier token are of no use.
    if (at <= _index) {
        at = _index + 1;
        _hasEscape = false;
    }
    for (;;) {
        _scanned = at = endOfRun(_data.cbegin() + at, _data.cend()) - _data.cbegin();
        if (at == _data.size())
            return SBJson5Token::EndOfData;
        if (_data.at(at) == '"')
            break;
        const qsizetype next = stepInString(at);
        if (next == kMoreNeeded)
            return SBJson5Token::EndOfData;
        if (next == kRefused)
            return SBJson5Token::Error;
        at = next;
    }
    token = QByteArrayView(_data).sliced(_index + 1, at - _index - 1);
    _index = at + 1;
    return _hasEscape ? SBJson5Token::EncodedString : SBJson5Token::String;
}

/// The position behind the escape or the character that begins there, or what else it came to.
qsizetype SBJson5StreamTokeniser::stepInString(qsizetype at)
{
    const quint8 byte = byteAt(at);
    if (byte == '\\') {
        _hasEscape = true;
        return escape(at);
    }
    if (byte < 0x20)
        return refuse(at, about("Unescaped control character", byte) + QLatin1String(" in string"));
    return character(at);
}

qsizetype SBJson5StreamTokeniser::refuse(qsizetype at, const QString &reason)
{
    fail(at, reason);
    return kRefused;
}

qsizetype SBJson5StreamTokeniser::escape(qsizetype at)
{
    constexpr QByteArrayView kLetters("bfnrt\"/\\");
    if (at + 1 == _data.size())
        return kMoreNeeded;
    const char letter = _data.at(at + 1);
    if (kLetters.contains(letter))
        return at + 2;
    if (letter != 'u')
        return refuse(at + 1, about("Illegal escape character", byteAt(at + 1)));
    const qsizetype end = at + 2 + kQuadLength;
    if (_data.size() < end)
        return kMoreNeeded;
    const auto unit = quadAt(_data, at + 2);
    if (!unit)
        return refuse(at + 2, QStringLiteral("Invalid hex quad"));
    if (isHighSurrogate(*unit))
        return lowSurrogate(end);
    if (isLowSurrogate(*unit))
        return refuse(at + 2, QStringLiteral("Invalid high character in surrogate pair"));
    return end;
}

/// Looks at the second half, which is to stand at `at`.
qsizetype SBJson5StreamTokeniser::lowSurrogate(qsizetype at)
{
    const qsizetype end = at + 2 + kQuadLength;
    if (_data.size() < end)
        return kMoreNeeded;
    const auto unit
        = QByteArrayView(_data).sliced(at, 2) == QByteArrayView("\\u") ? quadAt(_data, at + 2) : std::nullopt;
    if (!unit)
        return refuse(at, QStringLiteral("Missing low character in surrogate pair"));
    if (!isLowSurrogate(*unit))
        return refuse(at, QStringLiteral("Invalid low character in surrogate pair"));
    return end;
}

qsizetype SBJson5StreamTokeniser::character(qsizetype at)
{
    const quint8 first = byteAt(at);
    const qsizetype length = lengthOfSequence(first);
    if (length == 0)
        return refuse(at,
                      first < 0xC0 ? about("Unexpected UTF-8 continuation byte", first)
                                   : about("Illegal UTF-8 byte", first));
    char32_t value = first & (0x7FU >> length);
    for (qsizetype i = at + 1; i < at + length; ++i) {
        if (i == _data.size())
            return kMoreNeeded;
        if ((byteAt(i) & 0xC0U) != 0x80)
            return refuse(i,
                          QLatin1String("Missing UTF-8 continuation byte; found [") + hex(byteAt(i)) + u']');
        value = (value << 6U) | (byteAt(i) & 0x3FU);
    }
    constexpr std::array<char32_t, 5> kLeast{0, 0, 0x80, 0x800, 0x10000};
    if (value < kLeast[static_cast<std::size_t>(length)])
        return refuse(at, overlong(QByteArrayView(_data).sliced(at, length)));
    if (value >= 0x110000 || isHighSurrogate(value) || isLowSurrogate(value))
        return refuse(at,
                      QStringLiteral("Illegal Unicode code point [0x%1]")
                          .arg(QString::number(static_cast<quint32>(value), 16).toUpper()));
    return at + length;
}

/// The position behind the digits that begin there; at least one byte is left there, or `kMoreNeeded`.
qsizetype SBJson5StreamTokeniser::digits(qsizetype at) const
{
    const auto *const end = std::find_if_not(_data.cbegin() + at, _data.cend(), isDigit);
    return end == _data.cend() ? kMoreNeeded : end - _data.cbegin();
}

SBJson5Token SBJson5StreamTokeniser::number(QByteArrayView &token)
{
    using enum SBJson5Token;
    const qsizetype begin = _index + (_data.at(_index) == '-' ? 1 : 0);
    qsizetype at = begin;
    // Beside its digits, each part needs a byte to stand at its end.
    const auto takeDigits = [&] { return std::exchange(at, digits(at)); };
    if (takeDigits(); at == kMoreNeeded) {
        const bool isRefused = _data.size() - begin >= 2 && _data.at(begin) == '0';
        return isRefused ? fail(begin + 1, QStringLiteral("Leading zero is illegal in number")) : EndOfData;
    }
    if (at == begin)
        return fail(at, QStringLiteral("No digits after initial minus"));
    if (_data.at(begin) == '0' && at > begin + 1)
        return fail(begin + 1, QStringLiteral("Leading zero is illegal in number"));
    SBJson5Token kind = Integer;
    if (_data.at(at) == '.') {
        kind = Real;
        ++at;
        if (const qsizetype from = takeDigits(); at == from)
            return fail(at, QStringLiteral("No digits after decimal point"));
        if (at == kMoreNeeded)
            return EndOfData;
    }
    if ((_data.at(at) | 0x20) == 'e') {
        kind = Real;
        ++at;
        if (at < _data.size() && (_data.at(at) == '+' || _data.at(at) == '-'))
            ++at;
        if (const qsizetype from = takeDigits(); at == from)
            return fail(at, QStringLiteral("No digits in exponent"));
        if (at == kMoreNeeded)
            return EndOfData;
    }
    token = QByteArrayView(_data).sliced(_index, at - _index);
    _index = at;
    return kind;
}

} // namespace quorvin
