// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/Json5ParserHandler.h"

#include <algorithm>
#include <new>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kUsualMembers = 4; ///< of what exiftool tells of a tag

void addTo(std::pmr::vector<Json5Member> &members, const Json5Member &member)
{
    // What a vector outgrows stays in the memory that is never given back.
    if (members.empty())
        members.reserve(kUsualMembers);
    members.push_back(member);
}

} // namespace

const Json5Value *Json5Object::find(QByteArrayView key) const
{
    const auto found = std::find_if(members.rbegin(), members.rend(),
                                    [&](const Json5Member &member) { return member.key == key; });
    return found == members.rend() ? nullptr : &found->value;
}

void Json5ParserHandler::parserFoundObjectStart()
{
    begin<Json5Object>();
}

void Json5ParserHandler::parserFoundArrayStart()
{
    begin<Json5Array>();
}

template <typename Type>
void Json5ParserHandler::begin()
{
    void *const room = _memory.allocate(sizeof(Type), alignof(Type));
    auto *const container = new (room) Type(&_memory);
    if (_level < 0)
        _idata = container;
    else
        store(container);
    ++_level;
    _parent = std::exchange(_top, container);
}

/// Texts of the parser last for the call only.
QByteArrayView Json5ParserHandler::keep(QByteArrayView text)
{
    if (text.isEmpty())
        return {"", 0};
    auto *const room = static_cast<char *>(_memory.allocate(static_cast<std::size_t>(text.size()), 1));
    std::ranges::copy(text, room);
    return {room, text.size()};
}

void Json5ParserHandler::parserFoundObjectKey(QByteArrayView key)
{
    _key = keep(key);
    if (_level == 1)
        _keysOrder.push_back(_key);
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
    if (_level >= 0)
        store(keep(text));
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
    if (auto *const *array = std::get_if<Json5Array *>(&_top))
        (*array)->elements.push_back(value);
    else if (auto *const *object = std::get_if<Json5Object *>(&_top))
        addTo((*object)->members, {_key, value});
}

} // namespace quorvin
