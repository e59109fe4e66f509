// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/HtmlText.h"
#include "support/TestFolder.h"
#include "support/TestRecords.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::entryWithValue;
using test::exported;

namespace {

/// What breaks a format that is careless; nothing here is illegal in XML.
QStringList hostileValues()
{
    return {QString(),
            u"\"quoted\", 'and' <b>marked</b> &amp; ]]> \\ /"_s,
            u"\r\nline\nbreaks\r-\r\n"_s,
            u"=cmd|' /C calc'!A0"_s,
            u" +1,\"2\"\t"_s,
            u"@SUM(1;2)"_s,
            u"\u200fright\u202eto left\u200e \u00e9\u20ac\u2028\u2603\U0001f600 %s %1"_s,
            u"</td></table>,,\n,"_s,
            u"x\u00e9\"\n,"_s.repeated(200'000)};
}

QStringList controlValues()
{
    return {QString(QChar(1)) + u"\b\f\x1b[31m\u0080\uffff"_s, QString(QChar(0xd800)) + u'x',
            u"a"_s + QChar(0) + u'b'};
}

/// Lone surrogates have no place in UTF-8.
QString inUtf8(QString value)
{
    return QString::fromUtf8(value.toUtf8());
}

/// A strict reader of comma-separated fields. Absent when a rule is broken.
std::optional<QList<QStringList>> readCsv(QString text)
{
    static const QRegularExpression field(u"\\G(?:\"((?:[^\"]|\"\")*+)\"|([^\",\r\n]*+))(,|\n|$)"_s);
    QList<QStringList> rows{{}};
    for (qsizetype at = 0;;) {
        const auto match = field.match(text, at);
        if (!match.hasMatch())
            return std::nullopt;
        QString value = match.captured(1) + match.captured(2);
        rows.last().append(value.replace(u"\"\""_s, u"\""_s));
        at = match.capturedEnd();
        if (match.capturedView(3).isEmpty())
            return at == text.size() ? std::optional(rows) : std::nullopt;
        if (match.capturedView(3) == u'\n')
            rows.append(QStringList());
    }
}

/// A reader of binary property lists of maps, lists and strings; shares nothing with the library that writes.
class PlistReader {
public:
    explicit PlistReader(const QByteArray &bytes) : _bytes(bytes) { }

    QVariant root() const { return object(number(_bytes.size() - 16, 8)); }

private:
    quint64 number(qsizetype at, int size) const
    {
        quint64 value = 0;
        for (const char byte : _bytes.mid(at, size))
            value = value << 8 | static_cast<quint8>(byte);
        return value;
    }

    QVariant object(quint64 index) const
    {
        const auto trailer = _bytes.size() - 32;
        const int offsetSize = _bytes[trailer + 6];
        const int reference = _bytes[trailer + 7];
        auto at = static_cast<qsizetype>(
            number(static_cast<qsizetype>(number(trailer + 24, 8) + index * static_cast<quint64>(offsetSize)),
                   offsetSize));
        const int marker = static_cast<quint8>(_bytes[at++]);
        auto count = static_cast<qsizetype>(marker & 15);
        if (count == 15) {
            const int size = 1 << (_bytes[at++] & 15);
            count = static_cast<qsizetype>(number(at, size));
            at += size;
        }
        const auto element = [&](qsizetype i) { return object(number(at + i * reference, reference)); };
        switch (marker >> 4) {
        case 5:
            return QString::fromLatin1(_bytes.mid(at, count));
        case 6: {
            QString text(count, Qt::Uninitialized);
            qFromBigEndian<char16_t>(_bytes.constData() + at, count, text.data());
            return text;
        }
        case 10: {
            QVariantList list;
            for (qsizetype i = 0; i < count; ++i)
                list.append(element(i));
            return list;
        }
        case 13: {
            QVariantMap map;
            for (qsizetype i = 0; i < count; ++i)
                map.insert(element(i).toString(), element(count + i));
            return map;
        }
        default:
            return {};
        }
    }

    QByteArray _bytes;
};

/// As a list of maps: the value and the path of each file.
QList<QStringList> valuesIn(const QVariant &document)
{
    QList<QStringList> values;
    for (const QVariant &file : document.toList()) {
        const QVariant row = file.toMap()[u"File"_s].toList()[0].toList()[0];
        values.append({row.toMap()[u"value"_s].toString(), file.toMap()[u"_FileName"_s].toString()});
    }
    return values;
}

std::vector<ExportEntry> entriesOf(const QStringList &values)
{
    std::vector<ExportEntry> entries;
    std::ranges::transform(values, std::back_inserter(entries), entryWithValue);
    return entries;
}

QList<QStringList> expected(const QStringList &values)
{
    QList<QStringList> all;
    for (const QString &value : values)
        all.append({inUtf8(value), u"/x/"_s + inUtf8(value)});
    return all;
}

/// Knows the entities that the texts may name.
class HtmlEntities final : public QXmlStreamEntityResolver {
    QString resolveUndeclaredEntity(const QString &name) override
    {
        for (const HtmlEscape &row : unicodeHtmlEscapes()) {
            if (row.entity == u'&' + name + u';')
                return QChar(row.unit);
        }
        return {};
    }
};

/// The texts of all elements of that name, or the paths of the files, once there is a root around them.
QStringList textsOf(const QString &name, const QString &elements)
{
    QXmlStreamReader reader(u"<root>"_s + elements + u"</root>"_s);
    HtmlEntities entities;
    reader.setEntityResolver(&entities);
    QStringList texts;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == name)
            texts.append(name == u"file" ? reader.attributes().value(u"path"_s).toString()
                                         : reader.readElementText());
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return texts;
}

} // namespace

TEST(ExportRoundTrip, JsonAndPropertyListKeepEveryValue)
{
    const QStringList values = hostileValues() + controlValues();
    QJsonParseError problem;
    const QJsonDocument json = QJsonDocument::fromJson(exported(u"json"_s, entriesOf(values)), &problem);
    EXPECT_EQ(problem.error, QJsonParseError::NoError) << problem.errorString().toStdString();
    EXPECT_EQ(valuesIn(json.toVariant()), expected(values));

    QStringList zeroReplaced = values;
    zeroReplaced.replaceInStrings(QString(QChar(0)), u"\ufffd"_s);
    EXPECT_EQ(valuesIn(PlistReader(exported(u"plist"_s, entriesOf(values))).root()), expected(zeroReplaced));
}

TEST(ExportRoundTrip, CsvKeepsEveryValueInOneFieldAndRunsNone)
{
    const QStringList values = hostileValues() + controlValues();
    const auto rows = readCsv(QString::fromUtf8(exported(u"csv"_s, entriesOf(values)).mid(3)));
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 4 * values.size());
    for (qsizetype i = 0; i < values.size(); ++i) {
        const QString value = inUtf8(values[i]);
        const bool isGuarded = !value.trimmed().isEmpty() && u"+-=@"_s.contains(value.trimmed().front());
        EXPECT_EQ(rows->at(4 * i + 1), QStringList({u"/x/"_s + value, QString()}));
        EXPECT_EQ(rows->at(4 * i + 3), QStringList({u"KEY"_s, (isGuarded ? u"'"_s : QString()) + value}));
    }
}

TEST(ExportRoundTrip, XmlIsWellFormedUnderARoot)
{
    // The reader's own rules: line breaks become line feeds, in attributes blanks.
    QStringList values = hostileValues() + QStringList{u"\ufeffmark"_s};
    const QString document = QString::fromUtf8(exported(u"xml"_s, entriesOf(values)));
    values.replaceInStrings(QRegularExpression(u"\r\n?"_s), u"\n"_s);
    EXPECT_EQ(textsOf(u"item"_s, document), values);
    EXPECT_EQ(textsOf(u"file"_s, document),
              values.replaceInStrings(QRegularExpression(u"[\n\t]"_s), u" "_s)
                  .replaceInStrings(QRegularExpression(u"^"_s), u"/x/"_s));
}

TEST(ExportRoundTrip, HtmlHasNoTagsButItsOwn)
{
    const QString page = QString::fromUtf8(exported(u"html"_s, entriesOf(hostileValues())));
    QString body = page.mid(page.indexOf(u"<p"_s)).chopped(15);
    // What HTML allows and XML does not.
    body.remove(u" cellpadding=1 cellspacing=0"_s).remove(u" colspan=2"_s).remove(u"<br>\n"_s);
    QStringList cells;
    for (QString value : hostileValues())
        cells += {u"KEY: "_s, value.replace(QRegularExpression(u"\r\n|[\r\u2028]"_s), u"\n"_s)};
    EXPECT_EQ(textsOf(u"td"_s, body.replace(u"<br />"_s, u"\n"_s)), cells);
}

} // namespace quorvin
