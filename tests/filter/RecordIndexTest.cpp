// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/RecordIndex.h"

#include "filter/FilelistFilter.h"
#include "filter/IndexQuery.h"
#include "filter/RuleText.h"
#include "readers/RecordBuilder.h"
#include "support/IndexedFiles.h"
#include "support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>

#include <limits>

namespace quorvin {

using test::fileWith;
using test::recordOfTexts;
using test::samplesFolder;
using test::TextMaker;

namespace {

using namespace Qt::StringLiterals;

/// The samples, files of random texts, one that failed, and one with more names than columns have numbers
/// for.
std::vector<FilelistItemPtr> everyKindOfFile(TextMaker &texts)
{
    std::vector<FilelistItemPtr> files;
    for (const QString &name : QDir(samplesFolder()).entryList(QDir::Files))
        files.push_back(fileWith(RecordBuilder({}).dataAboutFile(samplesFolder() + u'/' + name)));
    for (int i = 0; i < 60; ++i)
        files.push_back(fileWith(recordOfTexts(texts.some(20), texts.some(20))));
    files.push_back(fileWith(failure(u"broken"_s)));
    files.push_back(fileWith(recordOfTexts({u"B"_s, u"A"_s}, {u"1920x1080"_s, u"F5.6"_s})));
    return files;
}

std::vector<bool> walked(const QString &text, const Rule &rule, const std::vector<FilelistItemPtr> &files)
{
    const FilelistFilterFunction function({.globalText = text, .rule = rule});
    std::vector<bool> passed;
    for (const FilelistItemPtr &file : files)
        passed.push_back(function.passes(*file));
    return passed;
}

std::vector<bool> asked(IndexQuery &query, const RecordIndex &index,
                        const std::vector<FilelistItemPtr> &files)
{
    std::vector<bool> passed;
    for (const FilelistItemPtr &file : files)
        passed.push_back(query.matches(index, index.entries()[index.entryOf(file.get()).value()]));
    return passed;
}

/// Asks both ways, letter by letter, and what was asked before is the wider query.
void expectEqualToWalk(const QString &text, const Rule &rule, const RecordIndex &index,
                       const std::vector<FilelistItemPtr> &files)
{
    std::unique_ptr<IndexQuery> wider;
    for (qsizetype length = text.isEmpty() ? 0 : 1; length <= text.size(); ++length) {
        const QString part = text.first(length);
        auto query = std::make_unique<IndexQuery>(part, rule);
        const bool isWithin = wider && query->isWithin(*wider);
        ASSERT_TRUE(query->mark(index, isWithin ? wider.get() : nullptr, {}));
        ASSERT_EQ(asked(*query, index, files), walked(part, rule, files))
            << part.toStdString() << " / " << textOfRule(rule).toStdString();
        wider = std::move(query);
    }
}

} // namespace

TEST(RecordIndex, FindsWhatTheWalkFinds)
{
    TextMaker texts(3);
    const auto files = everyKindOfFile(texts);
    RecordIndex index;
    for (const FilelistItemPtr &file : files)
        index.put(file, file->quorvinData());
    for (int i = 0; i < 40; ++i)
        expectEqualToWalk(texts.one(4), {}, index, files);
    for (const char *text : {"AVC", "kb/s", "english", "File"})
        expectEqualToWalk(QLatin1String(text), {}, index, files);
    for (const char *rule : {"fileType = 'Video'", "NOT fileType = 'Image' AND NOT failed", "failed",
                             "private", "[Video/Width] >= 320", "[Audio/Language] != 'French'",
                             "[Audio/Language] MATCHES '^(en|fr)' OR parameterName = 'iso'",
                             "[EXIF/FNumber] IN 2..6 OR [G/A] > 5", "[GPS/GPS Latitude] IS MISSING",
                             "parameterValue CONTAINS 'MAIN' OR [G/A] = 'F5.6'",
                             "[File/Size] < 80 KB AND parameterName != 'x'"}) {
        const Rule read = parseRule(QString::fromLatin1(rule)).value();
        expectEqualToWalk({}, read, index, files);
        expectEqualToWalk(u"e"_s, read, index, files);
    }
}

TEST(RecordIndex, RecordsThatHaveNoPlaceInItAreWalked)
{
    QStringList names;
    for (int i = 0; i < 70'000; ++i)
        names.append(QString::number(i));
    std::vector<FilelistItemPtr> files{fileWith(recordOfTexts({u"A"_s}, {u"early"_s})),
                                       fileWith(recordOfTexts(names, {u"x"_s})),
                                       fileWith(recordOfTexts({u"69999"_s, u"A"_s}, {u"late"_s}))};
    RecordIndex index;
    for (const FilelistItemPtr &file : files)
        index.put(file, file->quorvinData());
    expectEqualToWalk(u"69998"_s, {}, index, files);
    expectEqualToWalk(u"late"_s, parseRule(u"[G/A] = 'late' OR [G/3] IS MISSING").value(), index, files);
}

TEST(RecordIndex, RefreshedAndRemovedRecordsGoWithWhatOnlyTheyHad)
{
    TextMaker texts(5);
    std::vector<FilelistItemPtr> files;
    RecordIndex index;
    const QStringList names = u"A B C D "_s.repeated(500).split(u' ', Qt::SkipEmptyParts);
    for (int i = 0; i < 4; ++i) {
        files.push_back(fileWith(recordOfTexts(names, texts.some(2000))));
        index.put(files.back(), files.back()->quorvinData());
    }
    const std::size_t full = index.bytes();
    const quint64 generation = index.generation();
    const FilelistItemPtr removed = files.back();
    files.pop_back();
    index.remove(removed);
    for (int round = 0; round < 3; ++round) {
        for (const FilelistItemPtr &file : files)
            index.put(file, file->quorvinData());
    }
    index.put(files[0], recordOfTexts({u"A"_s}, {u"new"_s}));
    files[0]->setResult(recordOfTexts({u"A"_s}, {u"new"_s}));
    index.compact();
    EXPECT_EQ(index.generation(), generation);
    index.compact(1000);
    EXPECT_NE(index.generation(), generation);
    EXPECT_LT(index.bytes(), full);
    EXPECT_EQ(index.entryOf(removed.get()), std::nullopt);
    expectEqualToWalk(u"new"_s, {}, index, files);
    expectEqualToWalk(texts.one(3), parseRule(u"parameterValue CONTAINS 'a'").value(), index, files);
}

TEST(RecordIndex, KnowsTheNewestEntryOfAFileAmongManyOfTheDead)
{
    constexpr std::size_t kFiles = 500;
    RecordIndex index;
    std::vector<FilelistItemPtr> files;
    for (std::size_t i = 0; i < kFiles; ++i)
        files.push_back(fileWith(recordOfTexts({u"A"_s}, {QString::number(i)})));
    for (int round = 0; round < 8; ++round) {
        for (const FilelistItemPtr &file : files)
            index.put(file, file->quorvinData());
    }
    for (std::size_t i = 0; i < kFiles; i += 2)
        index.remove(files[i]);
    for (std::size_t i = 0; i < kFiles; ++i) {
        const auto entry = index.entryOf(files[i].get());
        ASSERT_EQ(entry.has_value(), i % 2 == 1) << i;
        EXPECT_TRUE(!entry || (*entry >= 7 * kFiles && index.entries()[*entry].file == files[i])) << i;
    }
}

TEST(ValueTable, GivesBackEachValueWithWhatItMeasures)
{
    TextMaker texts(9);
    QStringList values{u""_s,        u"Stra\u00dfe"_s, u"STRASSE"_s, u"strasse"_s,
                       u"36.7 KB"_s, u"36.7 kB"_s,     u"\u212a"_s};
    for (int i = 0; i < 3000; ++i)
        values.append(i % 3 == 0 ? QString::number(i) + u" ms"_s : texts.one(9));
    values.removeDuplicates();
    ValueTable table;
    for (qsizetype i = 0; i < values.size(); ++i)
        ASSERT_EQ(table.numberOf(values[i].toUtf8()), i);
    for (qsizetype i = 0; i < values.size(); ++i) {
        const auto number = static_cast<quint32>(i);
        ASSERT_EQ(table.numberOf(values[i].toUtf8()), number);
        EXPECT_EQ(table.value(number), values[i].toUtf8());
        EXPECT_EQ(table.folded(number), foldedUtf8(values[i]));
        EXPECT_EQ(table.quantity(number), quantityOf(values[i]));
    }
}

} // namespace quorvin
