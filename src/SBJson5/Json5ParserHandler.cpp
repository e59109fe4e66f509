// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/Json5ParserHandler.h"

#include <utility>

namespace quorvin {

void Json5ParserHandler::parserFoundObjectStart()
{
    begin(std::make_shared<Json5Object>());
}

void Json5ParserHandler::parserFoundArrayStart()
{
    begin(std::make_shared<Json5Array>());
}

void Json5ParserHandler::begin(Json5Value container)
{
    if (_level < 0)
        _idata = container;
    else
        store(container);
    ++_level;
    _parent = std::exchange(_top, std::move(container));
}

void Json5ParserHandler::parserFoundObjectKey(QByteArrayView key)
{
    _key = QString::fromUtf8(key);
    if (_level == 1)
        _keysOrder.append(_key);
}

void Json5ParserHandler::parserFoundObjectEnd()
{
    --_level;
    _top = std::exchange(_parent, {});
}

void Json5ParserHandler::parserFoundArrayEnd()
{
    --_level;
    _top = _parent;
}

void Json5ParserHandler::parserFoundBoolean(bool value)
{
    add(value);
}

void Json5ParserHandler::parserFoundNull()
{
    add({});
}

void Json5ParserHandler::parserFoundNumber(const SBJson5Number &number)
{
    std::visit([this](auto value) { add(value); }, number.value);
}

void Json5ParserHandler::parserFoundString(QByteArrayView text)
{
    add(QString::fromUtf8(text));
}

void Json5ParserHandler::parserFoundError(const SBJson5Error &error)
{
    _error = error.description;
}

void Json5ParserHandler::add(const Json5Value &value)
{
    if (_level >= 0)
        store(value);
}

void Json5ParserHandler::store(const Json5Value &value)
{
    if (const auto *array = std::get_if<std::shared_ptr<Json5Array>>(&_top))
        (*array)->elements.push_back(value);
    else if (const auto *object = std::get_if<std::shared_ptr<Json5Object>>(&_top))
        (*object)->members.insert(_key, value);
}

} // namespace quorvin
