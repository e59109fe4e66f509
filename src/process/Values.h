// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/Bytes.h"

#include <optional>
#include <tuple>
#include <type_traits>
#include <variant>
#include <vector>

namespace quorvin {

/// The fields of a type that crosses from one process to another, named once for both ways: a specialisation
/// has `static constexpr auto list = std::tuple(&Type::a, …);`, and may have `static bool isValid(const Type
/// &)` to refuse what no honest writer writes. Or it has `pack` to and `unpack` from a type that crosses in
/// its place.
template <typename Type>
struct Fields;

template <typename Type>
concept HasFields = requires
{
    Fields<Type>::list;
};

template <typename Type>
concept IsPacked = requires(const Type &value)
{
    Fields<Type>::unpack(Fields<Type>::pack(value));
};

/// Values as bytes, field by field; of a variant, the place of its type and then the value.
class ValueWriter {
public:
    explicit ValueWriter(ByteWriter &out) : _out(out) { }

    template <typename Number>
    requires std::is_arithmetic_v<Number> || std::is_enum_v<Number>
    void operator()(Number value)
    {
        if constexpr (std::is_same_v<Number, bool>)
            _out.number(static_cast<quint8>(value));
        else if constexpr (std::is_enum_v<Number>)
            _out.number(static_cast<std::underlying_type_t<Number>>(value));
        else
            _out.number(value);
    }
    void operator()(const QString &text)
    {
        // UTF-16, so that a path keeps bytes that are no UTF-8.
        _out.bytes(QByteArrayView(reinterpret_cast<const char *>(text.utf16()),
                                  text.size() * qsizetype{sizeof(QChar)}));
    }
    void operator()(const QByteArray &bytes) { _out.bytes(bytes); }
    template <typename Value>
    void operator()(const std::optional<Value> &value)
    {
        (*this)(value.has_value());
        if (value)
            (*this)(*value);
    }
    template <typename Value>
    void operator()(const std::vector<Value> &values)
    {
        (*this)(static_cast<quint32>(values.size()));
        for (const Value &value : values)
            (*this)(value);
    }
    template <typename... Kinds>
    void operator()(const std::variant<Kinds...> &value)
    {
        (*this)(static_cast<quint8>(value.index()));
        std::visit(*this, value);
    }
    template <HasFields Type>
    void operator()(const Type &value)
    {
        std::apply([&](auto... field) { ((*this)(value.*field), ...); }, Fields<Type>::list);
    }
    template <IsPacked Type>
    void operator()(const Type &value)
    {
        (*this)(Fields<Type>::pack(value));
    }

private:
    ByteWriter &_out;
};

/// The way back; as trusting as `ByteReader`. A variant of a type that it doesn't have is not ok.
class ValueReader {
public:
    explicit ValueReader(ByteReader &in) : _in(in) { }

    template <typename Number>
    requires std::is_arithmetic_v<Number> || std::is_enum_v<Number>
    void operator()(Number &value)
    {
        if constexpr (std::is_same_v<Number, bool>)
            value = _in.number<quint8>() != 0;
        else if constexpr (std::is_enum_v<Number>)
            value = static_cast<Number>(_in.number<std::underlying_type_t<Number>>());
        else
            value = _in.number<Number>();
    }
    void operator()(QString &text)
    {
        const QByteArrayView bytes = _in.bytes();
        text.resize(bytes.size() / qsizetype{sizeof(QChar)});
        std::copy_n(bytes.begin(), text.size() * qsizetype{sizeof(QChar)},
                    reinterpret_cast<char *>(text.data()));
    }
    void operator()(QByteArray &bytes) { bytes = _in.bytes().toByteArray(); }
    template <typename Value>
    void operator()(std::optional<Value> &value)
    {
        if (_in.number<quint8>() != 0)
            (*this)(value.emplace());
    }
    template <typename Value>
    void operator()(std::vector<Value> &values)
    {
        const quint32 count = _in.count(1);
        for (quint32 i = 0; i < count && _in.ok(); ++i)
            (*this)(values.emplace_back());
    }
    template <typename... Kinds>
    void operator()(std::variant<Kinds...> &value)
    {
        const auto kind = _in.number<quint8>();
        quint8 place = 0;
        const bool isKnown
            = _in.ok() && ((place++ == kind && ((*this)(value.template emplace<Kinds>()), true)) || ...);
        if (!isKnown)
            _in.fail();
    }
    template <HasFields Type>
    void operator()(Type &value)
    {
        std::apply([&](auto... field) { ((*this)(value.*field), ...); }, Fields<Type>::list);
        if constexpr (requires { Fields<Type>::isValid(value); }) {
            if (!Fields<Type>::isValid(value))
                _in.fail();
        }
    }
    template <IsPacked Type>
    void operator()(Type &value)
    {
        decltype(Fields<Type>::pack(value)) packed{};
        (*this)(packed);
        value = Fields<Type>::unpack(packed);
    }

private:
    ByteReader &_in;
};

template <typename Type>
QByteArray bytesOf(const Type &value)
{
    ByteWriter out;
    ValueWriter{out}(value);
    return out.take();
}

/// Absent for bytes that are not exactly one such value.
template <typename Type>
std::optional<Type> valueOf(QByteArrayView bytes)
{
    ByteReader in(bytes);
    Type value;
    ValueReader{in}(value);
    return in.ok() && in.atEnd() ? std::optional(std::move(value)) : std::nullopt;
}

} // namespace quorvin
