// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "SBJson5/SBJson5StreamParserDelegate.h"

#include <QByteArrayView>
#include <QString>

#include <memory_resource>
#include <variant>
#include <vector>

namespace quorvin {

struct Json5Array;
struct Json5Object;

/// A value as `Json5ParserHandler` builds it; a null value is `std::monostate`, a text is UTF-8. Containers
/// are never null. Texts and containers belong to the handler.
using Json5Value = std::variant<std::monostate, bool, qint64, quint64, double, QByteArrayView,
                                const Json5Array *, const Json5Object *>;

struct Json5Array {
    explicit Json5Array(std::pmr::memory_resource *memory) : elements(memory) { }

    std::pmr::vector<Json5Value> elements;
};

struct Json5Member {
    QByteArrayView key;
    Json5Value value;
};

struct Json5Object {
    explicit Json5Object(std::pmr::memory_resource *memory) : members(memory) { }

    /// In the order of the input; of a key that comes twice the last value counts.
    std::pmr::vector<Json5Member> members;

    /// Looks through the members: of a large object make an index. Null when there is none of that key.
    const Json5Value *find(QByteArrayView key) const;
};

/// Builds the value of a document, and the order in which the keys of the objects directly inside the
/// outermost container stand. Made for what exiftool writes: a list that holds one object, whose members are
/// plain values or objects of plain values. It knows one container above the one at hand, and no more:
/// behind an array within an object within that object, what follows is stored in that inner object; and
/// behind an object that held a closed object, what follows in it is dropped.
///
/// All that it builds lies in memory of its own and goes with it. One thread.
class Json5ParserHandler final : public SBJson5StreamParserDelegate {
public:
    Json5ParserHandler() = default;
    Json5ParserHandler(const Json5ParserHandler &) = delete;
    Json5ParserHandler &operator=(const Json5ParserHandler &) = delete;

    /// The outermost container; null before it began. A scalar document has none.
    const Json5Value &data() const { return _idata; }
    /// With repetitions, those of members that were stored elsewhere or dropped included.
    const std::vector<QByteArrayView> &keysOrder() const { return _keysOrder; }

    void parserFoundObjectStart() override;
    void parserFoundObjectKey(QByteArrayView key) override;
    void parserFoundObjectEnd() override;
    void parserFoundArrayStart() override;
    void parserFoundArrayEnd() override;
    void parserFoundBoolean(bool value) override;
    void parserFoundNull() override;
    void parserFoundNumber(const SBJson5Number &number) override;
    void parserFoundString(QByteArrayView text) override;
    void parserFoundError(const SBJson5Error &error) override;

    /// The reason why there is no whole document; "" while there is none.
    const QString &error() const { return _error; }

private:
    using Container = std::variant<std::monostate, Json5Array *, Json5Object *>;

    template <typename Type>
    void begin();
    QByteArrayView keep(QByteArrayView text);
    void add(const Json5Value &value);
    void store(const Json5Value &value);

    std::pmr::monotonic_buffer_resource _memory; ///< nothing in it is ever taken apart
    Container _top; ///< none when what comes is dropped
    Container _parent;
    qint64 _level = -1;
    QByteArrayView _key;
    Json5Value _idata;
    std::vector<QByteArrayView> _keysOrder;
    QString _error;
};

} // namespace quorvin
