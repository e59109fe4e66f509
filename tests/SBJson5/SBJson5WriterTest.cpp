// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/SBJson5Writer.h"

#include "SBJson5/SBJson5Object.h"
#include "SBJson5/SBJson5Proxy.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// The document, or "error: " and the reason.
QString written(const QVariant &value, const SBJson5WriterOptions &options = {})
{
    SBJson5Writer writer(options);
    return writer.stringWithObject(value).value_or(u"error: "_s + writer.error());
}

QVariant map(QList<std::pair<QVariant, QVariant>> entries)
{
    return QVariant::fromValue(SBJson5Object{std::move(entries)});
}

QVariant list(QVariantList elements = {})
{
    return elements;
}

/// Collects what a stream writer writes.
struct Collector final : SBJson5StreamWriterDelegate {
    QByteArray bytes;

    void writer(const SBJson5StreamWriter &, QByteArrayView appendBytes) override
    {
        bytes.append(appendBytes);
    }
};

struct Pair final : SBJson5Proxy {
    QVariant proxyForJson() const override { return QVariantList{1, 2}; }
};

} // namespace

TEST(SBJson5Writer, HumanReadableFormBreaksALineForEachValue)
{
    const SBJson5WriterOptions human{.humanReadable = true};
    EXPECT_EQ(written(map({{u"k"_s, list({1})}}), human), u"{\n  \"k\": [\n    1\n  ]\n}"_s);
    EXPECT_EQ(written(map({{u"a"_s, map({})}, {u"b"_s, list({list(), u"x"_s, true})}}), human),
              u"{\n  \"a\": {\n  },\n  \"b\": [\n    [\n    ],\n    \"x\",\n    true\n  ]\n}"_s);
    EXPECT_EQ(written(map({}), human), u"{\n}"_s);
    EXPECT_EQ(written(7, human), u"\n7"_s);
    EXPECT_EQ(written(map({{u"a"_s, map({})}, {u"b"_s, list({list(), u"x"_s, true})}})),
              u"{\"a\":{},\"b\":[[],\"x\",true]}"_s);
}

TEST(SBJson5Writer, ScalarsKeepTheirType)
{
    EXPECT_EQ(written(list({QVariant(), QVariant::fromValue(nullptr), true, false})),
              u"[null,null,true,false]"_s);
    EXPECT_EQ(
        written(list({-1, std::numeric_limits<qulonglong>::max(), std::numeric_limits<qlonglong>::min()})),
        u"[-1,18446744073709551615,-9223372036854775808]"_s);
    EXPECT_EQ(written(list({0.1, 3.0, -0.0, 1e300, 5e-324, 0.5F})),
              u"[0.10000000000000001,3,-0,1.0000000000000001e+300,4.9406564584124654e-324,0.5]"_s);
    EXPECT_EQ(written(QVariant::fromValue(SBJson5ProxyPtr(std::make_shared<Pair>()))), u"[1,2]"_s);
    EXPECT_EQ(written(QStringList{u"a"_s, u"b"_s}), u"[\"a\",\"b\"]"_s);
}

TEST(SBJson5Writer, StringsEscapeOnlyWhatTheyMust)
{
    EXPECT_EQ(written(QString()), u"\"\""_s);
    EXPECT_EQ(written(u"\b\t\n\f\r\"\\/\u007f\u00e9\u20ac\U0001f600"_s),
              u"\"\\b\\t\\n\\f\\r\\\"\\\\/\u007f\u00e9\u20ac\U0001f600\""_s);
    EXPECT_EQ(written(QString(QChar(0)) + QChar(11) + QChar(0x1f)), u"\"\\u0000\\u000b\\u001f\""_s);
    EXPECT_EQ(written(QString(QChar(0xd800)) + u'x'), u"\"?x\""_s);
    // The second time the string comes from the cache.
    EXPECT_EQ(written(list({u"a\"b"_s, u"a\"b"_s})), u"[\"a\\\"b\",\"a\\\"b\"]"_s);
}

TEST(SBJson5Writer, MapsKeepTheirOrderUnlessSorted)
{
    const QVariant value = map({{u"b"_s, 1}, {u"a"_s, 2}, {u"B"_s, 3}});
    const SBJson5KeysComparator backwards = [](const QString &l, const QString &r) { return r.compare(l); };
    EXPECT_EQ(written(value), u"{\"b\":1,\"a\":2,\"B\":3}"_s);
    EXPECT_EQ(written(value, {.sortKeys = true}), u"{\"B\":3,\"a\":2,\"b\":1}"_s);
    EXPECT_EQ(SBJson5Writer::writerWithMaxDepth(9, false, backwards).stringWithObject(value),
              u"{\"b\":1,\"a\":2,\"B\":3}"_s);
    EXPECT_EQ(written(QVariantMap{{u"b"_s, 1}, {u"a"_s, 2}}), u"{\"a\":2,\"b\":1}"_s);
}

TEST(SBJson5Writer, FailuresSayWhy)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(written(infinity), u"error: +Infinity is not a valid number in JSON"_s);
    EXPECT_EQ(written(list({-infinity})), u"error: -Infinity is not a valid number in JSON"_s);
    EXPECT_EQ(written(std::nan("")), u"error: NaN is not a valid number in JSON"_s);
    EXPECT_EQ(written(map({{1, 2}})), u"error: JSON object key must be string: 1"_s);
    EXPECT_EQ(written(list({QByteArray("x")})), u"error: JSON serialisation not supported for QByteArray"_s);
    EXPECT_EQ(written(list({list()}), {.maxDepth = 2}), u"[[]]"_s);
    EXPECT_EQ(written(list({list({list()})}), {.maxDepth = 2}), u"error: Nested too deep"_s);
    QVariant deep = list();
    for (int i = 0; i < 40; ++i)
        deep = list({deep});
    EXPECT_EQ(written(deep), u"error: Nested too deep"_s);
    EXPECT_EQ(written(deep, {.maxDepth = 0}).size(), 82);
    SBJson5Writer writer;
    EXPECT_FALSE(writer.dataWithObject(infinity));
    EXPECT_EQ(writer.dataWithObject(1), QByteArray("1"));
    EXPECT_EQ(writer.error(), QString());
}

TEST(SBJson5StreamWriter, StatesAllowWhatMayFollow)
{
    Collector collector;
    SBJson5StreamWriter writer(collector, {});
    EXPECT_FALSE(writer.writeArrayClose());
    EXPECT_EQ(writer.error(), u"Nothing is open"_s);
    EXPECT_TRUE(writer.writeObjectOpen());
    for (const bool accepted :
         {writer.writeNull(), writer.writeBool(true), writer.writeNumber(1), writer.writeNumber(0.5),
          writer.writeArrayOpen(), writer.writeObjectOpen(), writer.writeArrayClose()}) {
        EXPECT_FALSE(accepted);
        EXPECT_EQ(writer.error(), u"JSON object key must be string"_s);
    }
    EXPECT_TRUE(writer.writeString(u"k"_s) && writer.writeNull() && writer.writeObjectClose());
    for (const bool accepted :
         {writer.writeNull(), writer.writeString(u"k"_s), writer.writeNumber(0.5), writer.writeArrayOpen(),
          writer.writeObjectClose(), writer.writeArrayClose()}) {
        EXPECT_FALSE(accepted);
        EXPECT_EQ(writer.error(), u"Stream is closed"_s);
    }
    EXPECT_EQ(collector.bytes, "{\"k\":null}");
}

TEST(SBJson5StreamWriter, FailedWritesLeaveWhatIsOut)
{
    Collector collector;
    SBJson5StreamWriter writer(collector, {.maxDepth = 1, .humanReadable = true});
    EXPECT_TRUE(writer.writeArrayOpen() && writer.writeNumber(1));
    EXPECT_FALSE(writer.writeNumber(std::nan("")));
    EXPECT_EQ(collector.bytes, "[\n  1,\n  ");
    EXPECT_FALSE(writer.writeArrayOpen());
    EXPECT_EQ(collector.bytes, "[\n  1,\n  ,\n  ");
}

TEST(SBJson5StreamWriter, TextIsWrittenAsItReadsNow)
{
    Collector collector;
    SBJson5StreamWriter writer(collector, {});
    std::array<QChar, 2> place{u'a', u'"'};
    writer.writeArrayOpen();
    for (const char16_t first : {u'a', u'a', u'b'}) {
        place[0] = first;
        for (const qsizetype length : {2, 1})
            EXPECT_TRUE(writer.writeString(QString::fromRawData(place.data(), length)));
    }
    EXPECT_EQ(collector.bytes, R"(["a\"","a","a\"","a","b\"","b")");
}

} // namespace quorvin
