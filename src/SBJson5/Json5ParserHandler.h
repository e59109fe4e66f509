// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "SBJson5/SBJson5StreamParserDelegate.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <variant>
#include <vector>

namespace quorvin {

struct Json5Array;
struct Json5Object;

/// A value as `Json5ParserHandler` builds it; a null value is `std::monostate`. Containers are never null.
using Json5Value = std::variant<std::monostate, bool, qint64, quint64, double, QString,
                                std::shared_ptr<Json5Array>, std::shared_ptr<Json5Object>>;

struct Json5Array {
    std::vector<Json5Value> elements;
};

struct Json5Object {
    QHash<QString, Json5Value> members;
};

/// Builds the value of a document, and the order in which the keys of the objects directly inside the
/// outermost container stand. Made for what exiftool writes: a list that holds one object, whose members are
/// plain values or objects of plain values. It knows one container above the one at hand, and no more:
/// behind an array within an object within that object, what follows is stored in that inner object; and
/// behind an object that held a closed object, what follows in it is dropped.
///
/// Values lie as deep as the document: bound the depth of the parser.
class Json5ParserHandler final : public SBJson5StreamParserDelegate {
public:
    /// The outermost container; null before it began. A scalar document has none.
    const Json5Value &data() const { return _idata; }
    /// With repetitions, those of members that were stored elsewhere or dropped included.
    const QStringList &keysOrder() const { return _keysOrder; }

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
    void begin(Json5Value container);
    void add(const Json5Value &value);
    void store(const Json5Value &value);

    Json5Value _top; ///< null when what comes is dropped
    Json5Value _parent;
    qint64 _level = -1;
    QString _key;
    Json5Value _idata;
    QStringList _keysOrder;
    QString _error;
};

} // namespace quorvin
