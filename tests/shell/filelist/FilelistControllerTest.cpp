// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistController.h"

#include "shell/filelist/FilelistRow.h"
#include "support/Events.h"
#include "support/TestFolder.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <span>

namespace quorvin {

using namespace Qt::StringLiterals;

namespace {

/// The files of a window that has no widget.
struct Filelist : testing::Test {
    test::TestFolder folder;
    Settings values{folder / u"settings.ini"_s};
    LiveSettings settings{values};
    FilelistController list{settings};
    const QAbstractItemModelTester wholeTester{list.arranged().sourceModel(),
                                               QAbstractItemModelTester::FailureReportingMode::Fatal};
    const QAbstractItemModelTester arrangedTester{&list.arranged(),
                                                  QAbstractItemModelTester::FailureReportingMode::Fatal};

    /// Makes files of these names and gives their paths.
    QStringList made(const QString &names) const
    {
        QStringList paths;
        for (const QString &name : names.split(u' '))
            paths.append(folder.write(name));
        return paths;
    }
    bool awaitDone() const
    {
        return test::spinUntil([this] {
            return list.worker().processingIsDone() && list.worker().countToProcess() > 0
                && !list.isWalking();
        });
    }
    /// The arranged files, the selected ones in brackets, and behind a stroke the current one.
    QString shown() const
    {
        QStringList names;
        const std::vector<int> selected = list.selectedRows();
        for (const FilelistItemPtr &file : list.arranged().files()) {
            const bool isSelected = std::ranges::find(selected, names.size()) != selected.end();
            names.append(isSelected ? u'[' + file->prefixedPath() + u']' : file->prefixedPath());
        }
        const FilelistItemPtr &current = list.worker().currentFile();
        return names.join(u' ') + u'|' + (current ? current->prefixedPath() : QString());
    }
    QString whole() const
    {
        QStringList names;
        for (const FilelistItemPtr &file : list.filelist())
            names.append(file->prefixedPath());
        return names.join(u' ');
    }
    void filter(const QString &names)
    {
        list.arranged().setFilterRegularExpression(names);
        QCoreApplication::processEvents();
    }
    void select(std::initializer_list<int> rows)
    {
        for (const int row : rows)
            list.selection().select(list.arranged().index(row, 0), QItemSelectionModel::Select);
    }
};

} // namespace

TEST_F(Filelist, FilesReplaceJoinAndLeave)
{
    QStringList taken;
    QObject::connect(&list, &FilelistController::filesTaken, &list,
                     [&](const QStringList &paths) { taken += paths; });
    EXPECT_TRUE(list.isUntouched());
    list.processAdditionalFilesAtIndex(made(u"a b c"_s), 1);
    EXPECT_FALSE(list.isUntouched());
    ASSERT_TRUE(awaitDone());
    EXPECT_EQ(shown(), u"[a] b c|a"_s);
    list.processAdditionalFilesAtIndex(made(u"x y"_s), 1);
    ASSERT_TRUE(test::spinUntil([this] { return list.filelist().size() == 5; }));
    EXPECT_EQ(shown(), u"[a] x y b c|a"_s);
    list.processAdditionalFilesAndSelectFirst(made(u"z"_s));
    ASSERT_TRUE(test::spinUntil([this] { return list.filelist().size() == 6; }));
    EXPECT_EQ(shown(), u"a x y b c [z]|z"_s);
    EXPECT_EQ(taken.size(), 6);
    ASSERT_TRUE(awaitDone());
    select({1, 3, 5});
    list.removeSelectedItems();
    EXPECT_EQ(shown(), u"a [y] c|y"_s);
    list.processFiles(made(u"n"_s));
    ASSERT_TRUE(test::spinUntil([this] { return list.filelist().size() == 1; }));
    EXPECT_EQ(shown(), u"[n]|n"_s);
    list.removeSelectedItems();
    EXPECT_EQ(shown(), u"|"_s);
    EXPECT_TRUE(QFile::exists(folder / u"n"_s));
}

TEST_F(Filelist, WhatIsHiddenStaysInTheWholeList)
{
    list.processFiles(made(u"a1 b1 a2 b2 a3"_s));
    ASSERT_TRUE(awaitDone());
    ASSERT_EQ(shown(), u"[a1] a2 a3 b1 b2|a1"_s);
    filter(u"b"_s);
    EXPECT_EQ(shown(), u"[b1] b2|b1"_s) << "the current file is never a hidden one";
    EXPECT_EQ(list.totals().shown, 2);
    EXPECT_EQ(list.totals().all, 5);
    EXPECT_EQ(list.arrayWithDataForExport().size(), 2U);
    list.processAdditionalFilesAtIndex(made(u"b9 c"_s), 1);
    ASSERT_TRUE(test::spinUntil([this] { return list.filelist().size() == 7; }));
    EXPECT_EQ(whole(), u"a1 b9 c a2 a3 b1 b2"_s) << "places are those of the whole list";
    EXPECT_EQ(shown(), u"b9 [b1] b2|b1"_s);
    list.selectRow(0);
    list.removeSelectedItems();
    EXPECT_EQ(whole(), u"a1 c a2 a3 b1 b2"_s);
    filter(u"nothing"_s);
    EXPECT_EQ(shown(), u"|"_s);
    list.arranged().sort(0, Qt::DescendingOrder);
    filter({});
    EXPECT_EQ(shown(), u"[c] b2 b1 a3 a2 a1|c"_s);
}

TEST_F(Filelist, EmptyFoldersAndRemovedFilesLeaveNothingToWaitFor)
{
    ASSERT_TRUE(QDir().mkdir(folder / u"empty"_s));
    list.processFiles({folder / u"empty"_s});
    ASSERT_TRUE(test::spinUntil([this] { return !list.isWalking(); }));
    EXPECT_TRUE(list.worker().processingIsDone());
    QStringList names;
    for (int i = 0; i < 300; ++i)
        names.append(u"d/%1"_s.arg(i));
    made(names.join(u' '));
    list.processFiles({folder / u"d"_s});
    ASSERT_TRUE(test::spinUntil([this] { return list.filelist().size() == 300; }));
    list.selection().select({list.arranged().index(20, 0), list.arranged().index(299, 0)},
                            QItemSelectionModel::ClearAndSelect);
    list.removeSelectedItems();
    ASSERT_TRUE(awaitDone()) << "the rest is all there is to wait for";
    list.processAdditionalFiles({folder / u"empty"_s});
    ASSERT_TRUE(test::spinUntil([this] { return !list.isWalking(); }));
    EXPECT_TRUE(list.worker().processingIsDone());
    EXPECT_EQ(list.worker().countToProcess(), 20);
}

TEST_F(Filelist, EverySecondRowGoesAtOnce)
{
    QStringList names;
    for (int i = 0; i < 100; ++i)
        names.append(u"d/%1"_s.arg(i));
    made(names.join(u' '));
    list.processFiles({folder / u"d"_s});
    ASSERT_TRUE(test::spinUntil([this] { return list.filelist().size() == 100; }));
    filter(u"[5-9]"_s);
    int changes = 0;
    QObject::connect(&list, &FilelistController::windowArrangedFilelistDidChange, &list, [&] { ++changes; });
    const int shownRows = list.arranged().rowCount();
    QItemSelection everySecond;
    for (int row = 1; row < shownRows; row += 2)
        everySecond.select(list.arranged().index(row, 0), list.arranged().index(row, 0));
    list.selection().select(everySecond, QItemSelectionModel::ClearAndSelect);
    list.removeSelectedItems();
    EXPECT_EQ(list.arranged().rowCount(), shownRows - shownRows / 2);
    EXPECT_EQ(list.filelist().size(), 100U - static_cast<std::size_t>(shownRows / 2));
    EXPECT_EQ(list.selectedRow(), 1);
    list.undoRemoval();
    EXPECT_EQ(list.selectedCount(), shownRows / 2);
    ASSERT_TRUE(test::spinUntil([&] { return changes > 0; }));
    EXPECT_EQ(changes, 1) << "all that goes and comes in one turn is one change";
    select({0, 2, 4});
    list.removeSelectedItems();
    ASSERT_TRUE(test::spinUntil([&] { return changes > 1; }));
    EXPECT_EQ(changes, 2) << "also where each run of rows goes by itself";
}

TEST_F(Filelist, RefreshingManyIsCountedAndHoldsTheExportBack)
{
    list.processFiles(made(u"a b c d"_s));
    ASSERT_TRUE(awaitDone());
    list.refreshAll();
    EXPECT_FALSE(list.canExportAll());
    EXPECT_EQ(list.worker().countToProcess(), 4);
    EXPECT_EQ(list.worker().countProcessed(), 0);
    std::vector<FilelistItemPtr> order;
    QObject::connect(&list.arranged(), &ArrangedFilelist::dataChanged, &list, [&] {
        for (const FilelistItemPtr &file : list.filelist()) {
            if (file->isDone() && std::ranges::find(order, file) == order.end())
                order.push_back(file);
        }
    });
    ASSERT_TRUE(awaitDone());
    // The current one has a reader of its own where the pool is slow to come to it.
    EXPECT_EQ(std::erase(order, list.filelist().front()), 1U);
    EXPECT_TRUE(std::ranges::equal(order, std::span(list.filelist()).subspan(1)));
    EXPECT_TRUE(list.canExportAll());
    list.refreshInfo();
    EXPECT_FALSE(list.canExportAll()) << "nor may a document lack the one";
    EXPECT_EQ(list.worker().countProcessed(), 4);
    EXPECT_TRUE(test::spinUntil([this] { return list.canExportAll(); }));
}

TEST_F(Filelist, StoppedReadingGoesOn)
{
    QString names = u"d/0"_s;
    for (int i = 1; i < 300; ++i)
        names += u" d/%1"_s.arg(i);
    made(names);
    list.processFiles({folder / u"d"_s});
    ASSERT_TRUE(test::spinUntil([this] { return list.worker().countProcessed() > 3; }));
    list.stopReading();
    EXPECT_FALSE(list.isReading());
    const ListTotals stopped = list.totals();
    EXPECT_GT(stopped.unread, 0);
    EXPECT_EQ(list.arranged().index(299, 0).data(FilelistRow::StateRole).toInt(), FilelistRow::Unread);
    EXPECT_FALSE(list.filelist().back()->isDone());
    list.selectRow(299);
    ASSERT_TRUE(test::spinUntil([this] { return list.filelist().back()->isDone(); }))
        << "what is looked at is read all the same";
    EXPECT_LT(list.totals().unread, stopped.unread);
    list.refreshInfo();
    ASSERT_TRUE(awaitDone());
    EXPECT_EQ(list.totals().unread, 0);
    EXPECT_TRUE(std::ranges::all_of(list.filelist(), &FilelistItem::isDone));
}

TEST_F(Filelist, RemovedFilesComeBack)
{
    list.processFiles(made(u"a b c d e"_s));
    ASSERT_TRUE(awaitDone());
    EXPECT_FALSE(list.canUndoRemoval());
    select({2, 3});
    list.removeSelectedItems();
    EXPECT_EQ(shown(), u"[b] e|b"_s);
    list.removeSelectedItems();
    list.removeSelectedItems();
    EXPECT_EQ(shown(), u"|"_s);
    list.undoRemoval();
    EXPECT_EQ(shown(), u"[e]|e"_s);
    list.undoRemoval();
    list.undoRemoval();
    EXPECT_EQ(shown(), u"[a] b [c] [d] e|a"_s);
    EXPECT_EQ(list.totals().all, 5);
    EXPECT_TRUE(list.canExportAll());
    EXPECT_FALSE(list.canUndoRemoval());
    list.removeSelectedItems();
    list.processFiles(made(u"n"_s));
    ASSERT_TRUE(test::spinUntil([this] { return whole() == u"n"_s; }));
    EXPECT_FALSE(list.canUndoRemoval()) << "the list is another one";
}

TEST_F(Filelist, NextFailedFileIsFoundFromBothSides)
{
    QStringList paths = made(u"a c d"_s);
    paths += {folder / u"b"_s, folder / u"e"_s};
    list.processFiles(paths);
    ASSERT_TRUE(awaitDone());
    EXPECT_EQ(list.totals().failed, 2);
    for (const char *wanted : {"b", "e", "b"}) {
        list.selectNextFailed();
        EXPECT_EQ(list.worker().currentFile()->prefixedPath(), QLatin1String(wanted));
    }
}

TEST_F(Filelist, PlacesOnTheMapAreThoseOfTheArrangedList)
{
    list.processFiles(made(u"a1 b1 b2"_s));
    ASSERT_TRUE(awaitDone());
    filter(u"b"_s);
    RecordContents record;
    record.mapLocation = Location{1, 2};
    list.filelist()[2]->setResult(std::make_shared<const QuorvinData>(std::move(record)));
    const auto places = list.allMapLocationInfo();
    ASSERT_EQ(places.size(), 1U);
    EXPECT_EQ(places.front().lastIndexInList, 1U);
    list.selectFileByMapLocationInfo(places.front());
    EXPECT_EQ(shown(), u"b1 [b2]|b2"_s);
    list.selectRow(0);
    filter({});
    list.selectFileByMapLocationInfo(places.front());
    EXPECT_EQ(shown(), u"a1 [b1] b2|b1"_s) << "another file stands there now";
}

TEST_F(Filelist, ChangedRowsAreAnnouncedByTheBatch)
{
    constexpr int kFiles = 200;
    std::vector<bool> told(kFiles);
    int signalCount = 0;
    QObject::connect(&list.arranged(), &ArrangedFilelist::dataChanged, &list,
                     [&](const QModelIndex &first, const QModelIndex &last) {
                         ++signalCount;
                         for (int row = first.row(); row <= last.row(); ++row)
                             told[static_cast<std::size_t>(row)] = true;
                     });
    QString names = u"d/0"_s;
    for (int i = 1; i < kFiles; ++i)
        names += u" d/%1"_s.arg(i);
    made(names);
    list.processFiles({folder / u"d"_s});
    // All deliveries wait for one turn of the event loop.
    ASSERT_TRUE(test::spinUntil([this] { return list.filelist().size() == kFiles; }));
    while (!list.filelist().back()->isDone())
        QThread::msleep(1);
    ASSERT_TRUE(awaitDone());
    EXPECT_TRUE(std::ranges::all_of(told, std::identity()));
    EXPECT_LT(signalCount, kFiles / 2);
    EXPECT_EQ(list.arranged().index(kFiles - 1, 0).data(FilelistRow::StateRole).toInt(), FilelistRow::Ready);
}

} // namespace quorvin
