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

/// The index of a list, and what it told last.
struct Told {
    IndexAnswerPtr answer;
    QStringList names;
    std::vector<FilelistItemPtr> list;
    FilelistIndex index{[this](const IndexAnswerPtr &one) { answer = one; },
                        [this](const QStringList &all) { names = all; }};

    /// A file at the end of the list.
    FilelistItemPtr add(const QString &value)
    {
        list.push_back(fileWith(recordOfTexts({u"A"_s}, {value})));
        return list.back();
    }
    void change(const FilelistItemPtr &file, const Expected<QuorvinDataPtr> &result)
    {
        file->setResult(result);
        index.fileIsDone(file);
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
    told.index.setFiles({third, second, first});
    const quint64 question = told.index.ask(u"red"_s, {});
    ASSERT_TRUE(told.gets({third, first}));
    EXPECT_EQ(told.answer->question(), question);
    EXPECT_TRUE(told.answer->has(first.get()) && !told.answer->has(second.get()));

    // What comes later, changes or goes, changes the answer.
    const auto fourth = FilelistItem::itemWithFilename(u"/4"_s, u"4"_s);
    told.index.setFiles({third, fourth, second, first});
    told.change(first, recordOfTexts({u"A"_s}, {u"blue"_s}));
    EXPECT_TRUE(told.gets({third}));
    fourth->setIsDone(true);
    told.change(fourth, recordOfTexts({u"A"_s}, {u"RED"_s}));
    EXPECT_TRUE(told.gets({third, fourth}));
    told.index.setFiles({fourth, second});
    told.change(third, recordOfTexts({u"A"_s}, {u"red"_s}));
    EXPECT_TRUE(told.gets({fourth})) << "one that has left the list stays away";
    told.index.ask({}, Rule::failed());
    told.change(second, failure(u"broken"_s));
    EXPECT_TRUE(told.gets({second}));
}

TEST(FilelistIndex, NewestQuestionWins)
{
    Told told;
    for (int i = 0; i < 3000; ++i)
        told.add(u"number %1"_s.arg(i));
    told.index.setFiles(told.list);
    quint64 last = 0;
    for (const auto *text : {u"n", u"nu", u"num", u"number 1", u"number 12", u"number 123"})
        last = told.index.ask(QString::fromUtf16(text), {});
    std::vector files{told.list[123]};
    files.insert(files.end(), told.list.begin() + 1230, told.list.begin() + 1240);
    ASSERT_TRUE(told.gets(files));
    EXPECT_EQ(told.answer->question(), last);
    // An answer that is under way when nothing is asked any more is not handed out.
    told.index.ask(u"1"_s, {});
    told.index.stopAsking();
    told.answer.reset();
    told.add(u"1"_s);
    told.index.setFiles(told.list);
    told.index.ask(u"number 2999"_s, {});
    EXPECT_TRUE(told.gets({told.list[2999]}));
}

TEST(FilelistIndex, CountsForTheRuleAloneAndFindsBesideTheQuestion)
{
    Told told;
    for (int i = 0; i < 200; ++i)
        told.add(u"number %1"_s.arg(i));
    told.index.setFiles(told.list);
    const Rule rule = Rule::anyParameter(Rule::Kind::ParameterValue, Rule::Comparison::Contains, u"7"_s);
    for (const auto &text : {u"17"_s, u"177"_s, QString(), u"19"_s}) {
        told.answer.reset();
        told.index.ask(text, rule);
        ASSERT_TRUE(spinUntil([&] { return told.answer && told.answer->isComplete(); }));
        EXPECT_EQ(told.answer->satisfyingRule(), 38U) << text.toStdString();
    }
    EXPECT_EQ(told.answer->files(), std::vector{told.list[197]});

    IndexAnswerPtr found;
    told.index.find(u"nothing"_s, [&](const IndexAnswerPtr &) { ADD_FAILURE() << "another was asked for"; });
    told.index.find(u"99"_s, [&](const IndexAnswerPtr &one) { found = one; });
    ASSERT_TRUE(spinUntil([&] { return found != nullptr; }));
    EXPECT_EQ(found->files(), (std::vector{told.list[99], told.list[199]}));
    EXPECT_EQ(told.answer->files(), std::vector{told.list[197]}) << "the question stands";
}

TEST(FilelistIndex, TellsTheNamesThatRulesCanUse)
{
    Told told;
    const auto file = fileWith(recordOfTexts({u"B10"_s, u"B9"_s, u"A"_s}, {u"x"_s}));
    told.index.setFiles({file, fileWith(file->quorvinData())});
    EXPECT_TRUE(spinUntil([&] { return told.names == QStringList{u"G/A"_s, u"G/B9"_s, u"G/B10"_s}; }));
}

TEST(FilelistIndex, IsLookedAtWhenAllIsInThere)
{
    Told told;
    std::size_t seen = 0;
    for (int i = 0; i < 200; ++i)
        told.add(u"value %1"_s.arg(i));
    told.index.setFiles(told.list);
    told.index.lookAt([&seen](const RecordIndex &index, const std::stop_token &) {
        return [&seen, count = index.entries().size()] { seen = count; };
    });
    EXPECT_TRUE(spinUntil([&seen] { return seen > 0; }));
    EXPECT_EQ(seen, 200);
    // A look that tells nothing harms nobody.
    told.index.lookAt([](const RecordIndex &, const std::stop_token &) { return std::function<void()>(); });
    EXPECT_TRUE(
        told.index.ask(u"value 7"_s, {}) > 0
        && told.gets({told.list[7], told.list[70], told.list[71], told.list[72], told.list[73], told.list[74],
                      told.list[75], told.list[76], told.list[77], told.list[78], told.list[79]}));
}

} // namespace quorvin
