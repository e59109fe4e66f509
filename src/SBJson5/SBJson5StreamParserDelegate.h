// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArrayView>
#include <QString>

#include <variant>

namespace quorvin {

struct SBJson5Error {
    QString domain;
    int code = 0;
    QString description;
};

struct SBJson5Number {
    std::variant<qint64, quint64, double> value; ///< signed only where the text begins with a minus sign
    QByteArrayView text; ///< as it stands in the input
};

inline constexpr QLatin1String kSBJson5ErrorDomain("org.sbjson.parser");

/// Hears of what a stream parser finds, in the order of the input. Texts are valid UTF-8 with escapes undone;
/// like all views here they last for the call only.
class SBJson5StreamParserDelegate {
public:
    virtual ~SBJson5StreamParserDelegate() = default;

    virtual void parserFoundObjectStart() = 0;
    virtual void parserFoundObjectKey(QByteArrayView key) = 0;
    virtual void parserFoundObjectEnd() = 0;
    virtual void parserFoundArrayStart() = 0;
    virtual void parserFoundArrayEnd() = 0;
    virtual void parserFoundBoolean(bool value) = 0;
    virtual void parserFoundNull() = 0;
    virtual void parserFoundNumber(const SBJson5Number &number) = 0;
    virtual void parserFoundString(QByteArrayView text) = 0;
    /// Nothing follows it.
    virtual void parserFoundError(const SBJson5Error &error) = 0;
    /// Whether another container may follow the outermost one.
    virtual bool parserShouldSupportManyDocuments() const { return false; }
};

} // namespace quorvin
