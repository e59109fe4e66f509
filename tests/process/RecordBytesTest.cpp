// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/RecordBytes.h"

#include "readers/RecordBuilder.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvin {

namespace {

RecordContents contents()
{
    RecordContents record;
    record.filename = QStringLiteral("/odd?");
    record.filename[4] = QChar(0xDCFF);
    record.duration = -7;
    record.isAudio = true;
    record.mapLocation = Location{1.5, -2.5};
    record.general.md5 = QString();
    record.general.cover = {1, 2, false,
                            QByteArray("\0x\xff"
                                       "abc",
                                       6)};
    record.general.lines
        = {{QStringLiteral("Audio"), QStringLiteral("Audio #1"), {QStringLiteral("x - y"), 4, 1}, 3},
           {QString(), QStringLiteral("Location"), {QStringLiteral("1\u00b0N")}, 0, true}};
    record.general.thumbCount = QStringLiteral("0");
    record.general.longitude = -2.5;
    record.groups.beginGroup(QStringLiteral("File"));
    record.groups.beginStream(0);
    record.groups.add(internTerm(QStringLiteral("k"), QStringLiteral("l")), u"v",
                      ParameterFlag::IsPrivateInfo);
    record.groups.beginGroup(QStringLiteral("Audio"), true);
    record.groups.beginStream(2);
    record.groups.add(internTerm(QStringLiteral("k"), QStringLiteral("l")), u"\u00e9");
    record.groups.add(internTerm(QStringLiteral("k2"), QStringLiteral("l2")), u"");
    record.groups.beginGroup(QStringLiteral("MakerNote"));
    const quint16 subgroup = record.groups.addSubgroup(QStringLiteral("Auto Focus"));
    record.groups.beginStream(0);
    record.groups.add(internTerm(QStringLiteral("k"), QStringLiteral("l")), u"v", {}, subgroup);
    record.groups.beginGroup(QStringLiteral("Menu"));
    return record;
}

/// In the vocabulary before any test fills it, so that they stand for whatever ran before.
const struct {
    TermPtr kept = internTerm(QString(200, u'k'), {});
    TermPtr tooLong = internTerm(QString(201, u'k'), {});
} termsAtStart;

} // namespace

TEST(RecordBytes, CrossWithoutLoss)
{
    RecordEncoder encoder;
    RecordDecoder decoder;
    const RecordContents record = contents();
    const QByteArray first = encoder.encode(record);
    const QByteArray second = encoder.encode(record);
    EXPECT_LT(second.size(), first.size());
    EXPECT_TRUE(decoder.decode(first) == record);
    EXPECT_TRUE(decoder.decode(second) == record);
    EXPECT_FALSE(RecordDecoder().decode(second));
}

TEST(RecordBytes, EqualLongValuesCrossOnce)
{
    constexpr qsizetype kLength = 1 << 20;
    const auto recordWith = [](int count) {
        RecordContents record;
        record.groups.beginGroup(QStringLiteral("EXIF"));
        record.groups.beginStream(0);
        for (int i = 0; i < count; ++i)
            record.groups.add(internTerm(QStringLiteral("k"), QString()), QString(kLength, u'v'));
        return record;
    };
    const RecordContents record = recordWith(50);
    const QByteArray bytes = RecordEncoder().encode(record);
    EXPECT_LT(bytes.size(), 2 * kLength);
    EXPECT_TRUE(RecordDecoder().decode(bytes) == record);
    EXPECT_FALSE(RecordDecoder().decode(RecordEncoder().encode(recordWith(120))))
        << "a few bytes are not to become gigabytes";

    // A slice that cuts a character, or lies outside, is refused.
    ParameterGroups groups;
    EXPECT_FALSE(groups.setText("\xc3"));
    EXPECT_TRUE(groups.setText("a\xc3\xa9"));
    groups.beginGroup(QStringLiteral("g"));
    groups.beginStream(0);
    const TermPtr term = internTerm(QStringLiteral("k"), QString());
    EXPECT_FALSE(groups.addSlice(term, 0, 2, {}, 0));
    EXPECT_FALSE(groups.addSlice(term, 2, 1, {}, 0));
    EXPECT_FALSE(groups.addSlice(term, 1, 3, {}, 0));
    EXPECT_TRUE(groups.addSlice(term, 1, 2, {}, 0));
}

TEST(RecordBytes, LongNamesAreNotKeptForGood)
{
    const auto crossed = [](const TermPtr &term) {
        RecordContents record;
        record.groups.beginGroup(QStringLiteral("File"));
        record.groups.beginStream(0);
        record.groups.add(term, u"v");
        const auto read = RecordDecoder().decode(RecordEncoder().encode(record));
        return read->groups.parameters(read->groups.groups().front().streams.front()).front().term;
    };
    EXPECT_EQ(crossed(termsAtStart.kept), termsAtStart.kept);
    EXPECT_NE(crossed(termsAtStart.tooLong), termsAtStart.tooLong);
}

TEST(RecordBytes, VocabularyStartsAnewBeforeItIsTooLarge)
{
    RecordEncoder encoder;
    RecordDecoder decoder;
    for (std::size_t round = 0; round < 3; ++round) {
        RecordContents record = contents();
        record.groups.beginStream(1);
        for (std::size_t i = 0; i < kMaxConnectionTerms / 2 + 10; ++i)
            record.groups.add(internTerm(QStringLiteral("%1-%2").arg(round).arg(i), QString()), u"x");
        EXPECT_TRUE(decoder.decode(encoder.encode(record)).has_value());
    }
}

TEST(RecordBytes, WhatIsNoRecordHarmsNothing)
{
    const QByteArray whole = RecordEncoder().encode(contents());
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(RecordDecoder().decode(whole.first(length))) << length;
    EXPECT_FALSE(RecordDecoder().decode(whole + 'x'));

    std::mt19937 random(1);
    for (int i = 0; i < 20'000; ++i) {
        QByteArray damaged = whole;
        for (unsigned flips = random() % 4 + 1; flips > 0; --flips)
            damaged[static_cast<qsizetype>(random() % static_cast<unsigned>(damaged.size()))]
                = static_cast<char>(random());
        const auto record = RecordDecoder().decode(damaged);
        EXPECT_TRUE(!record || QuorvinData(*record).stringForExportText().size() < 1000);
    }
}

} // namespace quorvin
