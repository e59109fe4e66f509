// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/ArrangedFilelist.h"

#include "shell/filelist/FilelistFiltering.h"
#include "shell/filelist/FilelistModel.h"
#include "support/Events.h"

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

constexpr int kFiles = 40'000; ///< more than are asked in one turn

/// A list whose names are their numbers, arranged as soon as it has been asked.
struct LongArrangedList : testing::Test {
    FilelistModel whole;
    FilelistFiltering filtering{whole};
    ArrangedFilelist arranged{whole};
    int rounds = 0; ///< how often the list has been arranged

    void SetUp() override
    {
        std::vector<FilelistItemPtr> files;
        files.reserve(kFiles);
        for (int i = 0; i < kFiles; ++i)
            files.push_back(named(QString::number(i)));
        whole.setFiles(files);
        arranged.setFilter(filtering);
        QObject::connect(&filtering, &FilelistFiltering::criteriaDidChange, &arranged,
                         &ArrangedFilelist::stopDeciding);
        QObject::connect(&filtering, &FilelistFiltering::didChange, &arranged, &ArrangedFilelist::decide);
        QObject::connect(&arranged, &ArrangedFilelist::decided, &arranged, [this] {
            arranged.rearrange();
            ++rounds;
        });
        ASSERT_EQ(arranged.rowCount(), kFiles) << "whoever shows them asks for them first";
    }
    static FilelistItemPtr named(const QString &name)
    {
        return FilelistItem::itemWithFilename(u"/media/"_s + name, name);
    }
    bool awaitRounds(int count) const
    {
        return spinUntil([this, count] { return rounds >= count; });
    }
    /// Exactly the files whose names have the text are shown, in their order.
    void expectShown(const QString &text) const
    {
        std::vector<FilelistItemPtr> passing;
        std::ranges::copy_if(whole.files(), std::back_inserter(passing),
                             [&](const auto &file) { return file->prefixedPath().contains(text); });
        EXPECT_EQ(arranged.files(), passing);
    }
};

} // namespace

TEST_F(LongArrangedList, IsAskedInSlicesAndTheLastTextWins)
{
    filtering.setCriteria({.filenameText = u"3999"_s});
    EXPECT_EQ(arranged.rowCount(), kFiles) << "no turn asks all of them";
    filtering.setCriteria({.filenameText = u"77"_s});
    ASSERT_TRUE(awaitRounds(1));
    expectShown(u"77"_s);
    EXPECT_EQ(rounds, 1) << "what was typed over is never shown";
    filtering.setCriteria({});
    ASSERT_TRUE(awaitRounds(2));
    expectShown({});
}

TEST_F(LongArrangedList, FollowsRowsThatChangeWhileItIsAsked)
{
    filtering.setCriteria({.filenameText = u"77"_s});
    whole.insertFiles(0, {named(u"77 new"_s), named(u"new"_s)});
    whole.removeFiles({kFiles / 2, 79});
    whole.moveFiles({1, 5000, kFiles - 1}, 300);
    ASSERT_TRUE(awaitRounds(1));
    expectShown(u"77"_s);
}

TEST_F(LongArrangedList, AsksFilesAgainThatWereReadMeanwhile)
{
    filtering.setCriteria({.hideUnknownFiles = true});
    EXPECT_EQ(rounds, 0);
    const FilelistItemPtr early = whole.fileAt(7);
    early->setIsDone(true);
    whole.filesChanged({early});
    ASSERT_TRUE(awaitRounds(1));
    EXPECT_EQ(arranged.files(), std::vector{early});

    for (const FilelistItemPtr &file : whole.files())
        file->setIsDone(true);
    arranged.decide();
    whole.allFilesChanged();
    ASSERT_TRUE(spinUntil([this] { return arranged.rowCount() == kFiles; }));
}

TEST_F(LongArrangedList, IsAskedToItsEndHoweverOftenItShallBeAskedAgain)
{
    filtering.setCriteria({.hideUnknownFiles = true});
    ASSERT_TRUE(awaitRounds(1));
    for (const FilelistItemPtr &file : whole.files())
        file->setIsDone(true);
    arranged.decide();
    EXPECT_TRUE(spinUntil([this] {
        arranged.decide();
        return rounds >= 2;
    }));
    EXPECT_EQ(arranged.rowCount(), kFiles);
}

} // namespace quorvin
