// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "SBJson5/SBJson5StreamParser.h"
#include "SBJson5/SBJson5StreamParserDelegate.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <vector>

namespace quorvin {

/// Gets each root value: a QVariantMap, a QVariantList, a QString, a number (qlonglong, qulonglong or
/// double), a boolean, or an invalid variant for null. Setting `stop` ends the parser.
using SBJson5ValueBlock = std::function<void(const QVariant &value, bool &stop)>;
using SBJson5ErrorBlock = std::function<void(const SBJson5Error &error)>;

/// Reads JSON in pieces of any size and hands out whole values. Of a key that an object has twice the last
/// value counts. Without an error block errors go to Qt's log. One thread an object.
class SBJson5Parser final : private SBJson5StreamParserDelegate {
public:
    static constexpr quint64 kUsualDepth = 32;
    /// Deeper than this nothing is read, whatever is asked for: values must be taken apart again.
    static constexpr quint64 kMostDepth = 4096;

    /// With `allowMultiRoot` containers may follow each other; with `unwrapRootArray` the elements of an
    /// outermost array come one by one.
    SBJson5Parser(SBJson5ValueBlock block, bool allowMultiRoot, bool unwrapRootArray, quint64 maxDepth,
                  SBJson5ErrorBlock errorHandler);
    SBJson5Parser(const SBJson5Parser &) = delete;
    SBJson5Parser &operator=(const SBJson5Parser &) = delete;

    static SBJson5Parser parserWithBlock(SBJson5ValueBlock block, SBJson5ErrorBlock errorHandler = {});
    static SBJson5Parser multiRootParserWithBlock(SBJson5ValueBlock block,
                                                  SBJson5ErrorBlock errorHandler = {});
    static SBJson5Parser unwrapRootArrayParserWithBlock(SBJson5ValueBlock block,
                                                        SBJson5ErrorBlock errorHandler = {});

    /// As `SBJson5StreamParser::parse`.
    SBJson5ParserStatus parse(QByteArrayView data) { return _parser.parse(data); }

private:
    struct Container {
        bool isObject = false;
        QVariantMap dict;
        QVariantList array;
        QString key; ///< of the value that comes next
    };

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
    bool parserShouldSupportManyDocuments() const override { return _supportManyDocuments; }

    bool deepen();
    void maxDepthError();
    void parserFoundValue(const QVariant &value);

    SBJson5ValueBlock _valueBlock;
    SBJson5ErrorBlock _errorHandler;
    bool _supportManyDocuments;
    bool _supportPartialDocuments;
    quint64 _maxDepth;
    quint64 _depth = 0;
    std::vector<Container> _stack;
    SBJson5StreamParser _parser;
};

} // namespace quorvin
