// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/SBJson5Parser.h"

#include <QDebug>

#include <algorithm>
#include <utility>

namespace quorvin {

SBJson5Parser::SBJson5Parser(SBJson5ValueBlock block, bool allowMultiRoot, bool unwrapRootArray,
                             quint64 maxDepth, SBJson5ErrorBlock errorHandler)
    : _valueBlock(std::move(block)),
      _errorHandler(std::move(errorHandler)),
      _supportManyDocuments(allowMultiRoot),
      _supportPartialDocuments(unwrapRootArray),
      _maxDepth(std::min(maxDepth, kMostDepth)),
      _parser(*this)
{
    if (!_errorHandler)
        _errorHandler = [](const SBJson5Error &error) { qWarning().noquote() << error.description; };
}

SBJson5Parser SBJson5Parser::parserWithBlock(SBJson5ValueBlock block, SBJson5ErrorBlock errorHandler)
{
    return {std::move(block), false, false, kUsualDepth, std::move(errorHandler)};
}

SBJson5Parser SBJson5Parser::multiRootParserWithBlock(SBJson5ValueBlock block, SBJson5ErrorBlock errorHandler)
{
    return {std::move(block), true, false, kUsualDepth, std::move(errorHandler)};
}

SBJson5Parser SBJson5Parser::unwrapRootArrayParserWithBlock(SBJson5ValueBlock block,
                                                            SBJson5ErrorBlock errorHandler)
{
    return {std::move(block), false, true, kUsualDepth, std::move(errorHandler)};
}

/// False when that is too deep, and all ends.
bool SBJson5Parser::deepen()
{
    if (++_depth <= _maxDepth)
        return true;
    maxDepthError();
    return false;
}

void SBJson5Parser::maxDepthError()
{
    constexpr int kTooDeep = 3;
    _errorHandler({kSBJson5ErrorDomain, kTooDeep,
                   QStringLiteral("Input depth exceeds max depth of %1").arg(_maxDepth)});
    _parser.stop();
}

void SBJson5Parser::parserFoundObjectStart()
{
    if (deepen())
        _stack.push_back({.isObject = true, .dict = {}, .array = {}, .key = {}});
}

void SBJson5Parser::parserFoundArrayStart()
{
    if (deepen() && !(_supportPartialDocuments && _depth == 1))
        _stack.emplace_back();
}

void SBJson5Parser::parserFoundObjectKey(QByteArrayView key)
{
    _stack.back().key = QString::fromUtf8(key);
}

void SBJson5Parser::parserFoundObjectEnd()
{
    --_depth;
    const QVariantMap dict = std::move(_stack.back().dict);
    _stack.pop_back();
    parserFoundValue(dict);
}

void SBJson5Parser::parserFoundArrayEnd()
{
    if (--_depth == 0 && _supportPartialDocuments)
        return;
    const QVariantList array = std::move(_stack.back().array);
    _stack.pop_back();
    parserFoundValue(array);
}

void SBJson5Parser::parserFoundBoolean(bool value)
{
    parserFoundValue(value);
}

void SBJson5Parser::parserFoundNull()
{
    parserFoundValue({});
}

void SBJson5Parser::parserFoundNumber(const SBJson5Number &number)
{
    parserFoundValue(std::visit([](auto value) { return QVariant(value); }, number.value));
}

void SBJson5Parser::parserFoundString(QByteArrayView text)
{
    parserFoundValue(QString::fromUtf8(text));
}

void SBJson5Parser::parserFoundError(const SBJson5Error &error)
{
    _errorHandler(error);
}

void SBJson5Parser::parserFoundValue(const QVariant &value)
{
    if (_stack.empty()) {
        bool stop = false;
        _valueBlock(value, stop);
        if (stop)
            _parser.stop();
    } else if (_stack.back().isObject) {
        _stack.back().dict.insert(_stack.back().key, value);
    } else {
        _stack.back().array.append(value);
    }
}

} // namespace quorvin
