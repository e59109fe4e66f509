// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/SBJson5StreamWriter.h"

#include "SBJson5/SBJson5Object.h"
#include "SBJson5/SBJson5Proxy.h"
#include "SBJson5/SBJson5StreamWriterDelegate.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quorvin {

namespace {

using Entries = QList<std::pair<QVariant, QVariant>>;

template <typename Map>
Entries entriesOfMap(const Map &map)
{
    Entries entries;
    entries.reserve(map.size());
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        entries.append({entry.key(), entry.value()});
    return entries;
}

Entries entriesOf(const QVariant &map)
{
    switch (map.typeId()) {
    case QMetaType::QVariantMap:
        return entriesOfMap(map.toMap());
    case QMetaType::QVariantHash:
        return entriesOfMap(map.toHash());
    default:
        return map.value<SBJson5Object>().entries;
    }
}

void sortEntries(Entries &entries, const SBJson5KeysComparator &comparator)
{
    std::ranges::stable_sort(entries, [&](const auto &left, const auto &right) {
        const QString leftKey = left.first.toString();
        const QString rightKey = right.first.toString();
        return comparator ? comparator(leftKey, rightKey) < 0 : leftKey < rightKey;
    });
}

bool isEscaped(char byte)
{
    return static_cast<unsigned char>(byte) < 0x20 || byte == '"' || byte == '\\';
}

void appendEscape(char byte, QByteArray &to)
{
    static constexpr std::array<std::pair<char, char>, 7> kShort{
        {{'\b', 'b'}, {'\t', 't'}, {'\n', 'n'}, {'\f', 'f'}, {'\r', 'r'}, {'"', '"'}, {'\\', '\\'}}};
    static constexpr char kDigits[] = "0123456789abcdef";
    to.append('\\');
    const auto found = std::ranges::find(kShort, byte, &std::pair<char, char>::first);
    if (found != kShort.end())
        to.append(found->second);
    else
        to.append("u00").append(kDigits[byte >> 4]).append(kDigits[byte & 15]);
}

void quote(QByteArrayView text, QByteArray &to)
{
    to.resize(0);
    to.reserve(text.size() + text.size() / 10 + 2);
    to.append('"');
    const auto *from = text.begin();
    while (from != text.end()) {
        const auto *end = std::find_if(from, text.end(), isEscaped);
        to.append(QByteArrayView(from, end));
        if (end != text.end())
            appendEscape(*end++, to);
        from = end;
    }
    to.append('"');
}

} // namespace

SBJson5StreamWriter::SBJson5StreamWriter(SBJson5StreamWriterDelegate &delegate, SBJson5WriterOptions options)
    : _delegate(delegate), _options(std::move(options))
{
}

bool SBJson5StreamWriter::writeValue(const QVariant &value)
{
    const int type = value.typeId();
    if (type == QMetaType::QVariantMap || type == QMetaType::QVariantHash
        || type == qMetaTypeId<SBJson5Object>())
        return writeObject(value);
    switch (type) {
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return writeArray(value.toList());
    case QMetaType::QString:
        return writeString(value.toString());
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return writeNull();
    default:
        break;
    }
    if (type == qMetaTypeId<SBJson5ProxyPtr>()) {
        if (const auto proxy = value.value<SBJson5ProxyPtr>())
            return writeValue(proxy->proxyForJson());
        return writeNull();
    }
    return writeNumber(value);
}

bool SBJson5StreamWriter::writeObject(const QVariant &map)
{
    if (!writeObjectOpen())
        return false;
    Entries entries = entriesOf(map);
    if (_options.sortKeys || _options.sortKeysComparator)
        sortEntries(entries, _options.sortKeysComparator);
    for (const auto &[key, value] : std::as_const(entries)) {
        if (key.typeId() != QMetaType::QString)
            return fail(QLatin1String("JSON object key must be string: ") + key.toString());
        if (!writeString(key.toString()) || !writeValue(value))
            return false;
    }
    return writeObjectClose();
}

bool SBJson5StreamWriter::writeArray(const QVariantList &list)
{
    return writeArrayOpen()
        && std::ranges::all_of(list, [this](const QVariant &element) { return writeValue(element); })
        && writeArrayClose();
}

bool SBJson5StreamWriter::writeString(const QString &text)
{
    // Shared strings lie in one place, and that is found faster than a text; who lies there is looked at.
    const auto known = _cache.constFind(text.constData());
    if (known != _cache.cend() && known->text == text) {
        if (isInvalidState())
            return false;
        beginScalar();
        appendBytes(known->json);
        transitionState();
        return true;
    }
    if (!writeUtf8String(text.toUtf8()))
        return false;
    if (text.size() <= kMaxCachedLength && (known != _cache.cend() || _cache.size() < kMaxCachedStrings))
        _cache.insert(
            text.constData(),
            {QString(text.constData(), text.size()), QByteArray(_quoted.constData(), _quoted.size())});
    return true;
}

bool SBJson5StreamWriter::writeUtf8String(QByteArrayView text)
{
    if (isInvalidState())
        return false;
    beginScalar();
    quote(text, _quoted);
    appendBytes(_quoted);
    transitionState();
    return true;
}

bool SBJson5StreamWriter::writeNumber(const QVariant &number)
{
    switch (number.typeId()) {
    case QMetaType::Bool:
        return writeBool(number.toBool());
    case QMetaType::UChar:
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return writeScalar(QByteArray::number(number.toULongLong()));
    case QMetaType::SChar:
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return writeScalar(QByteArray::number(number.toLongLong()));
    case QMetaType::Float:
    case QMetaType::Double:
        return writeReal(number.toDouble());
    default:
        return fail(QLatin1String("JSON serialisation not supported for ")
                    + QLatin1String(number.metaType().name()));
    }
}

bool SBJson5StreamWriter::writeReal(double number)
{
    if (isInvalidState() || expectingKey())
        return false;
    if (std::isfinite(number)) {
        std::array<char, 128> digits{};
        const auto [end, problem] = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                                  std::chars_format::general, 17);
        return writeScalar(QByteArrayView(digits.data(), end));
    }
    beginScalar();
    const QLatin1String name(std::isnan(number) ? "NaN" : number > 0 ? "+Infinity" : "-Infinity");
    return fail(name + QLatin1String(" is not a valid number in JSON"));
}

bool SBJson5StreamWriter::writeBool(bool value)
{
    return writeScalar(value ? "true" : "false");
}

bool SBJson5StreamWriter::writeNull()
{
    return writeScalar("null");
}

bool SBJson5StreamWriter::writeObjectOpen()
{
    return open('{', State::ObjectStart);
}

bool SBJson5StreamWriter::writeObjectClose()
{
    return !isInvalidState() && close('}');
}

bool SBJson5StreamWriter::writeArrayOpen()
{
    return open('[', State::ArrayStart);
}

bool SBJson5StreamWriter::writeArrayClose()
{
    return !isInvalidState() && !expectingKey() && close(']');
}

bool SBJson5StreamWriter::open(char bracket, State inside)
{
    if (isInvalidState() || expectingKey())
        return false;
    appendSeparator(_options.humanReadable && !_stateStack.empty());
    _stateStack.push_back(_state);
    _state = inside;
    if (_options.maxDepth != 0 && _stateStack.size() > _options.maxDepth)
        return fail(QStringLiteral("Nested too deep"));
    appendBytes({&bracket, 1});
    return true;
}

bool SBJson5StreamWriter::close(char bracket)
{
    if (_stateStack.empty())
        return fail(QStringLiteral("Nothing is open"));
    const State closing = _state;
    _state = _stateStack.back();
    _stateStack.pop_back();
    if (_options.humanReadable)
        appendBytes(rowOfState(closing).onOwnLine ? lineStart().sliced(1) : " ");
    appendBytes({&bracket, 1});
    transitionState();
    return true;
}

void SBJson5StreamWriter::beginScalar()
{
    appendSeparator(_options.humanReadable);
}

bool SBJson5StreamWriter::writeScalar(QByteArrayView text)
{
    if (isInvalidState() || expectingKey())
        return false;
    beginScalar();
    appendBytes(text);
    transitionState();
    return true;
}

bool SBJson5StreamWriter::fail(const QString &reason)
{
    _error = reason;
    return false;
}

bool SBJson5StreamWriter::isInvalidState()
{
    return _state == State::Complete && !fail(QStringLiteral("Stream is closed"));
}

bool SBJson5StreamWriter::expectingKey()
{
    return rowOfState(_state).expectingKey && !fail(QStringLiteral("JSON object key must be string"));
}

void SBJson5StreamWriter::appendSeparator(bool andWhitespace)
{
    const SBJson5StreamWriterStateRow &row = rowOfState(_state);
    if (!row.onOwnLine)
        return appendBytes(andWhitespace ? ": " : ":");
    const QByteArrayView comma = andWhitespace ? lineStart() : QByteArrayView(",");
    appendBytes(row.hasComma ? comma : comma.sliced(1));
}

QByteArrayView SBJson5StreamWriter::lineStart()
{
    const qsizetype length = 2 + 2 * static_cast<qsizetype>(_stateStack.size());
    if (_lineStart.size() < length)
        _lineStart.resize(length, ' ');
    return QByteArrayView(_lineStart).first(length);
}

void SBJson5StreamWriter::appendBytes(QByteArrayView bytes)
{
    _delegate.writer(*this, bytes);
}

void SBJson5StreamWriter::transitionState()
{
    _state = rowOfState(_state).next;
}

} // namespace quorvin
