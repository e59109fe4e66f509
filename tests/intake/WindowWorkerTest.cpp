// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/WindowWorker.h"

#include "intake/FilelistTotals.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

std::vector<FilelistItemPtr> files(int count)
{
    std::vector<FilelistItemPtr> made;
    for (int i = 0; i < count; ++i)
        made.push_back(FilelistItem::itemWithFilename(QStringLiteral("/f/%1").arg(i), QString::number(i)));
    return made;
}

void finish(WindowWorker &worker, const FilelistItemPtr &file, qint64 duration = 0)
{
    RecordContents record;
    record.duration = duration;
    file->setResult(std::make_shared<const QuorvinData>(std::move(record)));
    worker.isTotalDurationChanged = true;
    worker.fileIsReady(file);
}

/// "processed/to process", with "!" behind it when all is done.
QString counts(const WindowWorker &worker)
{
    return QStringLiteral("%1/%2%3")
        .arg(worker.countProcessed())
        .arg(worker.countToProcess())
        .arg(worker.processingIsDone() ? QStringLiteral("!") : QString());
}

} // namespace

TEST(WindowWorker, CountsEachFileOnce)
{
    WindowWorker worker;
    EXPECT_EQ(counts(worker), QStringLiteral("0/0"));
    const auto list = files(3);
    worker.startNewProcessingWithFiles(list, true);
    for (int times = 0; times < 2; ++times)
        worker.fileIsReady(list[1]);
    EXPECT_EQ(counts(worker), QStringLiteral("1/3"));
    worker.fileIsReady(list[0]);
    worker.fileIsReady(list[2]);
    EXPECT_EQ(counts(worker), QStringLiteral("3/3!"));
    worker.fileIsReady(list[0]);
    EXPECT_EQ(counts(worker), QStringLiteral("3/3!")) << "a refreshed file";
    worker.startNewProcessingWithFiles(files(2), true);
    worker.fileIsReady(list[0]);
    EXPECT_EQ(counts(worker), QStringLiteral("0/2")) << "a file of the list before";
}

TEST(WindowWorker, AddedFilesRunWithWhatIsLeft)
{
    WindowWorker worker;
    const auto list = files(5);
    worker.startNewProcessingWithFiles(list, true);
    for (int i = 0; i < 3; ++i)
        worker.fileIsReady(list[static_cast<std::size_t>(i)]);
    const auto more = files(4);
    worker.startNewProcessingWithFiles(more, false);
    EXPECT_EQ(counts(worker), QStringLiteral("0/6"));
    worker.fileIsReady(list[0]);
    EXPECT_EQ(counts(worker), QStringLiteral("0/6")) << "it was finished before";
    worker.fileIsReady(list[4]);
    worker.fileIsReady(more[0]);
    EXPECT_EQ(counts(worker), QStringLiteral("2/6"));
}

TEST(WindowWorker, RemovedFilesLeaveTheCounts)
{
    WindowWorker worker;
    const auto list = files(3);
    worker.startNewProcessingWithFiles(list, true);
    worker.fileIsReady(list[0]);
    worker.fileIsRemoved(list[0]);
    EXPECT_EQ(counts(worker), QStringLiteral("0/2"));
    worker.fileIsReady(list[1]);
    worker.fileIsRemoved(list[2]);
    EXPECT_EQ(counts(worker), QStringLiteral("1/1")) << "nothing was delivered since";
    worker.fileIsReady(list[2]);
    EXPECT_EQ(counts(worker), QStringLiteral("1/1!")) << "the late delivery of a removed file";
    worker.fileIsRemoved(list[1]);
    EXPECT_EQ(counts(worker), QStringLiteral("0/0!"));
}

TEST(WindowWorker, FilesReadOnceMoreCountOnceMore)
{
    WindowWorker worker;
    const auto list = files(4);
    worker.startNewProcessingWithFiles(list, true);
    for (int i = 0; i < 3; ++i)
        worker.fileIsReady(list[static_cast<std::size_t>(i)]);
    worker.startNewProcessingWithFiles({list[1], list[3]}, false);
    EXPECT_EQ(counts(worker), QStringLiteral("0/2")) << "one is on its way already";
    worker.fileIsRemoved(list[0]);
    EXPECT_EQ(counts(worker), QStringLiteral("0/2")) << "it was of the run before";
    worker.fileIsReady(list[3]);
    worker.fileIsReady(list[1]);
    EXPECT_EQ(counts(worker), QStringLiteral("2/2!"));
}

TEST(WindowWorker, KnowsWhatFailedAndWhatWasLeftUnread)
{
    WindowWorker worker;
    const auto list = files(4);
    worker.startNewProcessingWithFiles(list, true);
    list[0]->setResult(failure(QStringLiteral("it is bad")));
    worker.fileIsReady(list[0]);
    worker.stopProcessing();
    EXPECT_EQ(counts(worker), QStringLiteral("1/1!"));
    EXPECT_TRUE(worker.isUnread(list[1]) && !worker.isUnread(list[0]));
    FilelistTotals totals;
    EXPECT_EQ(totals.totals(worker, list, list).failed, 1);
    EXPECT_EQ(totals.totals(worker, list, list).unread, 3);
    worker.fileIsRemoved(list[2]);
    worker.startNewProcessingWithFiles({list[0], list[1]}, false);
    EXPECT_EQ(worker.countFailed(), 0);
    EXPECT_EQ(worker.countUnread(), 1);
    EXPECT_EQ(counts(worker), QStringLiteral("0/2"));
}

TEST(WindowWorker, KnowsTheCurrentFileAndWhereItWasRecorded)
{
    WindowWorker worker;
    EXPECT_FALSE(worker.currentFilePath() || worker.currentQuorvinData() || worker.currentMapLocationInfo());
    const auto file = files(1).front();
    worker.setCurrentFile(file);
    EXPECT_EQ(worker.currentFilePath(), QStringLiteral("/f/0"));
    RecordContents record;
    record.mapLocation = Location{48.5, -2.25};
    file->setResult(std::make_shared<const QuorvinData>(std::move(record)));
    const auto info = worker.currentMapLocationInfo();
    ASSERT_TRUE(info);
    EXPECT_EQ(info->location, (Location{48.5, -2.25}));
    EXPECT_EQ(info->filename, QStringLiteral("/f/0"));
    EXPECT_FALSE(info->lastIndexInList);
}

TEST(FilelistTotals, CountAndDuration)
{
    WindowWorker worker;
    FilelistTotals totals;
    EXPECT_EQ(totals.totals(worker, {}, {}), (ListTotals{0, 0, {}}));
    const auto list = files(5);
    const std::vector<FilelistItemPtr> arranged(list.begin(), list.begin() + 2);
    worker.startNewProcessingWithFiles(list, true);
    EXPECT_EQ(totals.totals(worker, list, arranged), (ListTotals{2, 5, {}}));
    for (const auto &file : list)
        finish(worker, file, 90'000);
    EXPECT_EQ(totals.totals(worker, list, arranged), (ListTotals{2, 5, 450'000}))
        << "just finished: that of all";
    EXPECT_EQ(totals.totals(worker, list, arranged), (ListTotals{2, 5, 180'000}));
    EXPECT_EQ(totals.totals(worker, list, list), (ListTotals{5, 5, 450'000}));
}

} // namespace quorvin
