// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/IsoMetadata.h"

#include "support/TestFolder.h"

#include <QtEndian>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray box(const QByteArray &type, const QByteArray &content)
{
    return number(static_cast<quint32>(content.size() + 8)) + type + content;
}

QByteArray value(quint32 type, const QByteArray &bytes)
{
    return box("data", number(type) + number(0) + bytes);
}

QByteArray movieWith(const QByteArray &inside)
{
    return box("ftyp", "isom") + box("mdat", QByteArray(100, 'x')) + box("moov", box("mvhd", "") + inside);
}

} // namespace

TEST(IsoMetadata, TellsItemsOfEachFormat)
{
    const test::TestFolder folder;
    const QByteArray itunes = box(
        "meta",
        number(0) + box("hdlr", "")
            + box("ilst",
                  box("\xA9nam", value(1, "N\xC3\xA4me")) + box("covr", value(0, QByteArray(300, '\xAB')))
                      + box("----",
                            box("mean", number(0) + "a.b") + box("name", number(0) + "C")
                                + value(21, number(7)))));
    const QByteArray text = QByteArray::fromHex("000315c7") + "abc" + QByteArray::fromHex("000215c7") + "de";
    const QByteArray quickTime
        = box("meta",
              box("hdlr", "") + box("keys", number(0) + number(1) + box("mdta", "a.make"))
                  + box("ilst", box(number(1), value(1, "Maker")) + box(number(9), value(1, "x"))));
    const QString path
        = folder.write(u"a.mp4"_s, movieWith(quickTime + box("udta", itunes + box("\xA9xyz", text))));
    const auto report = isoMetadataReport(path);
    ASSERT_TRUE(report);
    const QString type = u"dataType=com.apple.metadata.datatype."_s;
    EXPECT_EQ(*report,
              u"Metadata Formats:\n\n"
              "com.apple.quicktime.mdta\n============================\n"
              "identifier=mdta/a.make, "_s
                  + type
                  + u"UTF-8, locale=(null), length=5, str=Maker\nMaker\n"
                    "identifier=, "_s
                  + type
                  + u"UTF-8, locale=(null), length=1, str=x\nx\n\n"
                    "com.apple.itunes\n============================\n"
                    "identifier=itsk/%A9nam, "_s
                  + type
                  + u"UTF-8, locale=(null), length=5, str=N\u00E4me\nN\u00E4me\n"
                    "identifier=itsk/covr, "_s
                  + type + u"raw-data, locale=(null), length=300, str=(null)\n"_s + u"AB"_s.repeated(200)
                  + u"\n"
                    "identifier=itlk/a.b.C, "_s
                  + type + u"int, locale=(null), length=4, str=(null)\n"_s + QString::fromUtf8(number(7))
                  + u"\n\n"
                    "com.apple.quicktime.udta\n============================\n"
                    "identifier=udta/%A9xyz, "_s
                  + type
                  + u"UTF-8, locale=eng, length=3, str=abc\nabc\n"
                    "identifier=udta/%A9xyz, "_s
                  + type + u"UTF-8, locale=eng, length=2, str=de\nde\n"_s);
}

TEST(IsoMetadata, DamagedFilesAreNoTrouble)
{
    const test::TestFolder folder;
    EXPECT_FALSE(isoMetadataReport(test::sample(u"tone.wav"_s)));
    EXPECT_FALSE(isoMetadataReport(folder / u"none"_s));
    const QByteArray whole = movieWith(
        box("udta", box("meta", number(0) + box("hdlr", "") + box("ilst", box("\xA9nam", value(1, "x"))))));
    for (qsizetype length = 0; length < whole.size(); ++length) {
        QByteArray damaged = whole;
        damaged[length] = '\xFF';
        for (const QByteArray &bytes : {whole.first(length), damaged})
            isoMetadataReport(folder.write(u"a.mp4"_s, bytes));
    }
    const auto none = isoMetadataReport(folder.write(u"b.mp4"_s, movieWith({})));
    ASSERT_TRUE(none);
    EXPECT_EQ(*none, u"Metadata Formats:\n"_s);
}

} // namespace quorvin
