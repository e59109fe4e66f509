// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/QuorvinData.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

namespace {

void add(ParameterGroups &groups, const QString &key, const QString &value, ParameterFlags flags = {})
{
    groups.add(internTerm(key, key.toUpper()), value, flags);
}

RecordContents contents()
{
    RecordContents record;
    ParameterGroups &groups = record.groups;
    groups.beginGroup(QStringLiteral("File"));
    groups.beginStream(0);
    add(groups, QStringLiteral("name"), QStringLiteral("a.mov"));
    add(groups, QStringLiteral("bytes"), QStringLiteral("5"), ParameterFlag::SkipInExtended);
    add(groups, QStringLiteral("folder"), QStringLiteral("/home"), ParameterFlag::IsPrivateInfo);
    groups.beginGroup(QStringLiteral("Audio"), true);
    groups.beginStream(1);
    groups.endStreamUnlessEmpty();
    groups.beginStream(2);
    add(groups, QStringLiteral("title"), QStringLiteral("old"));
    add(groups, QStringLiteral("title"), QStringLiteral("n\u00e9w\nline"));
    groups.endStreamUnlessEmpty();
    groups.beginGroup(QStringLiteral("Menu"));
    return record;
}

} // namespace

TEST(RecordText, GroupsAreBlocksWithAnEmptyLineBetween)
{
    const QuorvinData record(contents());
    EXPECT_EQ(
        record.stringForExportText(),
        QStringLiteral("File\nNAME: a.mov\nFOLDER: /home\n\nAudio #2\nTITLE: old\nTITLE: n\u00e9w\nline"));
    EXPECT_EQ(record.stringForExportTextWithoutFilePrivate(),
              QStringLiteral("File\nNAME: a.mov\n\nAudio #2\nTITLE: old\nTITLE: n\u00e9w\nline"));
}

TEST(RecordText, GroupOfPrivateFactsAloneKeepsItsName)
{
    RecordContents record;
    record.groups.beginGroup(QStringLiteral("File"));
    record.groups.beginStream(0);
    add(record.groups, QStringLiteral("folder"), QStringLiteral("/home"), ParameterFlag::IsPrivateInfo);
    EXPECT_EQ(QuorvinData(record).stringForExportTextWithoutFilePrivate(), QStringLiteral("File"));
    EXPECT_EQ(QuorvinData(RecordContents{}).stringForExportText(), QString());
}

TEST(RecordText, SubgroupsAreGroupsAndTheOneWithoutNameIsOpen)
{
    RecordContents record;
    ParameterGroups &groups = record.groups;
    groups.beginGroup(QStringLiteral("MakerNote"));
    groups.beginStream(0);
    const quint16 first = groups.addSubgroup(QStringLiteral("Auto Focus"));
    const quint16 open = groups.addSubgroup(QString());
    const quint16 namesake = groups.addSubgroup(QStringLiteral("Auto Focus"));
    groups.add(internTerm(QStringLiteral("a"), QStringLiteral("A")), u"1", {}, namesake);
    groups.add(internTerm(QStringLiteral("b"), QStringLiteral("B")), u"2", {}, open);
    groups.add(internTerm(QStringLiteral("c"), QStringLiteral("C")), u"3", {}, first);
    EXPECT_EQ(QuorvinData(record).stringForExportText(),
              QStringLiteral("MakerNote\n\nAuto Focus\nC: 3\nB: 2\n\nAuto Focus\nA: 1"));
}

TEST(RecordText, RepeatedKeyIsListedTwiceAndLooksUpAsTheLast)
{
    const ParameterGroups groups = contents().groups;
    const auto &stream = groups.group(u"Audio")->streams.front();
    EXPECT_EQ(stream.number, 2U);
    EXPECT_EQ(groups.parameters(stream).size(), 2U);
    EXPECT_EQ(groups.lookUp(stream, u"title"), QStringLiteral("n\u00e9w\nline"));
    EXPECT_EQ(groups.lookUp(stream, u"none"), std::nullopt);
    EXPECT_TRUE(groups.group(u"Menu")->streams.empty());
    EXPECT_EQ(groups.group(u"Video"), nullptr);
}

TEST(RecordText, ExportsShowTheLastValueOfEachOfManyKeys)
{
    RecordContents record;
    record.groups.beginGroup(QStringLiteral("Exif"));
    record.groups.beginStream(0);
    for (int i = 0; i < 3000; ++i) {
        const QString key = QStringLiteral("key %1").arg(i % 1000);
        record.groups.add(internTerm(key, QString::number(i)), QString::number(i));
    }
    const ExportInfo info = computeExportInfo(record, false);
    ASSERT_EQ(info.sections.front().streams.front().size(), 3000U);
    int wrong = 0;
    for (const ExportRow &row : info.sections.front().streams.front())
        wrong += row.term->key != QStringLiteral("key %1").arg(row.value.toByteArray().toInt() - 2000);
    EXPECT_EQ(wrong, 0);
}

TEST(RecordText, ExportsKeepWhatIsPrivateInTheTreeOnlyAndNoGroupOfTheTreeAlone)
{
    RecordContents record;
    ParameterGroups &groups = record.groups;
    groups.beginGroup(QStringLiteral("File"));
    groups.beginStream(0);
    add(groups, QStringLiteral("kept"), QStringLiteral("1"),
        ParameterFlag::IsPrivateInfo | ParameterFlag::IsPrivateInTreeOnly);
    add(groups, QStringLiteral("dropped"), QStringLiteral("2"), ParameterFlag::IsPrivateInfo);
    groups.beginGroup(QStringLiteral("PNG"));
    groups.beginStream(0);
    add(groups, QStringLiteral("shown"), QStringLiteral("3"), ParameterFlag::SkipInExport);
    for (const bool isImage : {false, true}) {
        record.isImage = isImage;
        const ExportInfo info = computeExportInfo(record, true);
        ASSERT_EQ(info.sections.size(), 1U);
        ASSERT_EQ(info.sections[0].streams[0].size(), 1U);
        EXPECT_EQ(info.sections[0].streams[0][0].value, "1");
    }
}

TEST(RecordText, EqualLongValuesAreStoredOnce)
{
    const QString text = QStringLiteral("long ").repeated(2'000);
    const auto bytesOf = [&](int times) {
        ParameterGroups groups;
        groups.beginGroup(QStringLiteral("Image"));
        groups.beginStream(0);
        for (int i = 0; i < times; ++i) {
            add(groups, QString::number(i), text);
            add(groups, QString::number(i), i % 2 == 0 ? text.chopped(1) : QStringLiteral("short"));
        }
        const auto parameters = groups.parameters(groups.groups().front().streams.front());
        EXPECT_TRUE(std::ranges::all_of(parameters, [&](const auto &parameter) {
            const QString value = groups.value(parameter);
            return value == text || value == text.chopped(1) || value == QStringLiteral("short");
        }));
        quint32 end = 0;
        for (const auto &parameter : parameters)
            end = std::max(end, parameter.offset + parameter.length);
        return end;
    };
    EXPECT_LT(bytesOf(1'000), 3 * text.size());
    EXPECT_EQ(bytesOf(1), 2 * text.size() - 1);
}

TEST(RecordText, GeneralLeavesEmptyPiecesOut)
{
    RecordContents record;
    record.general.format = QStringLiteral("Matroska");
    record.general.filesize = QStringLiteral("1.50 MB");
    record.general.imageSize = QStringLiteral("4 x 3");
    record.general.lines
        = {{QStringLiteral("Video"), QStringLiteral("Video #1"), {QStringLiteral("AVC - Title"), 6}, 0},
           {QStringLiteral("Video"), QStringLiteral("Video #2"), {}, 1}};
    EXPECT_EQ(QuorvinData(record).stringForExportGeneral(),
              QStringLiteral("Container: Matroska, 1.50 MB, 4 x 3\nVideo #1: AVC - Title\nVideo #2: "));
}

TEST(RecordText, SearchKeepsGroupsWithHitsAlone)
{
    RecordContents record = contents();
    record.groups.beginGroup(QStringLiteral("MakerNote"));
    record.groups.beginStream(0);
    const quint16 focus = record.groups.addSubgroup(QStringLiteral("Title Focus"));
    record.groups.add(internTerm(QStringLiteral("m"), QStringLiteral("Mode")), u"ISO 100", {}, focus);
    const QuorvinData data(std::move(record));
    const auto found = [&](const char *text) {
        QStringList lines;
        const QString having = QString::fromUtf8(text);
        convertFromDataArray(data.extendedContentHaving(having), lines, false);
        EXPECT_EQ(data.isContentHas(having), !lines.isEmpty() && !having.isEmpty()) << text;
        return lines.join(u'|');
    };
    // A name has it, or a value; the name of a group alone is not enough, and what is not shown is not looked
    // at.
    EXPECT_EQ(found("Title"), QStringLiteral("Audio #2|TITLE: old|TITLE: n\u00e9w\nline"));
    EXPECT_EQ(found("iso"), QStringLiteral("MakerNote||Title Focus|Mode: ISO 100"));
    EXPECT_EQ(found("bytes"), QString());
    EXPECT_EQ(found("focus"), QString());
    // A letter with its mark is one, however it is written, and is not the letter alone.
    EXPECT_EQ(found("NE\u0301W"), QStringLiteral("Audio #2|TITLE: n\u00e9w\nline"));
    EXPECT_EQ(found("new"), QString());
    EXPECT_EQ(found("").remove(u'|').size(), data.stringForExportText().remove(u'\n').size() + 1);
}

TEST(SearchText, FoldsEveryScript)
{
    const auto has = [](const char *text, const char *having) {
        return SearchText(QString::fromUtf8(having)).isIn(QString::fromUtf8(text));
    };
    EXPECT_TRUE(has("Straße", "STRASSE"));
    EXPECT_TRUE(has("ΟΔΥΣΣΕΥΣ", "οδυσσευς"));
    EXPECT_TRUE(has("Москва", "МОСК"));
    EXPECT_TRUE(has("ᎣᏏᏲ", "ꭳꮟ"));
    EXPECT_TRUE(has("東京タワー", "京タ"));
    // Case and composition are all that it sees past: neither width nor other forms, nor a part of a
    // syllable.
    EXPECT_FALSE(has("ＩＳＯ", "iso"));
    EXPECT_FALSE(has("m²", "m2"));
    EXPECT_FALSE(has("각", "가"));
    EXPECT_FALSE(has("x", ""));
}

} // namespace quorvin
