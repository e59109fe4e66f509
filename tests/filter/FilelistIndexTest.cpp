// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/FilelistIndex.h"

#include "support/Events.h"
#include "support/IndexedFiles.h"

#include <gtest/gtest.h>

namespace quorvin {

using test::fileWith;
using test::recordOfTexts;
using test::spinUntil;

namespace {

using namespace Qt::StringLiterals;

/// An index, and the last that it told.
struct Told {
    IndexAnswerPtr answer;
    QStringList names;
    FilelistIndex index{[this](const IndexAnswerPtr &one) { answer = one; },
                        [this](const QStringList &list) { names = list; }};

    FilelistItemPtr add(const QString &value)
    {
        const FilelistItemPtr file = fileWith(recordOfTexts({u"A"_s}, {value}));
        index.put(file, file->quorvinData());
        return file;
    }
    bool gets(const std::vector<FilelistItemPtr> &files)
    {
        return spinUntil([&] { return answer && answer->isComplete() && answer->files() == files; });
    }
};

} // namespace

TEST(FilelistIndex, AnswersInTheOrderOfTheListAndFollowsIt)
{
    Told told;
    const auto first = told.add(u"red apple"_s);
    const auto second = told.add(u"green apple"_s);
    const auto third = told.add(u"Red pear"_s);
    told.index.setOrder({third, second, first});
    const quint64 question = told.index.ask(u"red"_s, {});
    ASSERT_TRUE(told.gets({third, first}));
    EXPECT_EQ(told.answer->question(), question);
    EXPECT_TRUE(told.answer->has(first.get()) && !told.answer->has(second.get()));

    // What comes later, changes or goes, changes the answer.
    const auto fourth = told.add(u"RED"_s);
    EXPECT_TRUE(told.gets({third, first, fourth}));
    told.index.put(third, recordOfTexts({u"A"_s}, {u"blue"_s}));
    EXPECT_TRUE(told.gets({first, fourth}));
    told.index.remove({fourth});
    EXPECT_TRUE(told.gets({first}));
    told.index.put(second, nullptr);
    told.index.ask({}, Rule::failed());
    EXPECT_TRUE(told.gets({second}));
}

TEST(FilelistIndex, NewestQuestionWins)
{
    Told told;
    std::vector<FilelistItemPtr> files;
    for (int i = 0; i < 3000; ++i)
        files.push_back(told.add(u"number %1"_s.arg(i)));
    quint64 last = 0;
    for (const auto *text : {u"n", u"nu", u"num", u"number 1", u"number 12", u"number 123"})
        last = told.index.ask(QString::fromUtf16(text), {});
    ASSERT_TRUE(told.gets({files[123], files[1230], files[1231], files[1232], files[1233], files[1234],
                           files[1235], files[1236], files[1237], files[1238], files[1239]}));
    EXPECT_EQ(told.answer->question(), last);
    // An answer that is under way when nothing is asked any more is not handed out.
    told.index.ask(u"1"_s, {});
    told.index.stopAsking();
    told.answer.reset();
    told.add(u"1"_s);
    told.index.ask(u"number 2999"_s, {});
    EXPECT_TRUE(told.gets({files[2999]}));
}

TEST(FilelistIndex, TellsTheNamesThatRulesCanUse)
{
    Told told;
    const auto file = fileWith(recordOfTexts({u"B"_s, u"A"_s}, {u"x"_s}));
    told.index.put(file, file->quorvinData());
    EXPECT_TRUE(spinUntil([&] { return told.names == QStringList{u"G/A"_s, u"G/B"_s}; }));
}

} // namespace quorvin
