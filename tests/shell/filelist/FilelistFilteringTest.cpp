// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistController.h"
#include "support/Events.h"
#include "support/TestFolder.h"

#include <QAbstractItemModelTester>
#include <QFile>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

/// The files of a window that has no widget: three samples, a text, and a file that is not there.
struct FilteredList : testing::Test {
    test::TestFolder folder;
    Settings values{folder / u"settings.ini"_s};
    LiveSettings settings{values};
    FilelistController list{settings};
    const QAbstractItemModelTester tester{&list.arranged(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal};

    void SetUp() override
    {
        const QStringList paths{test::sample(u"movie.mp4"_s), test::sample(u"photo.jpg"_s),
                                test::sample(u"tone.wav"_s), folder.write(u"notes.txt"_s),
                                folder / u"none.mkv"_s};
        list.processFiles(paths);
        ASSERT_TRUE(awaitDone());
    }
    bool awaitDone() const
    {
        return spinUntil([this] {
            return list.worker().processingIsDone() && list.worker().countToProcess() > 0
                && !list.isWalking();
        });
    }
    /// What is shown with these criteria, and behind a stroke the current file.
    QString shown(const FilelistFilter &criteria)
    {
        list.filtering().setCriteria(criteria);
        EXPECT_TRUE(spinUntil([this] { return !list.filtering().isSearching(); }));
        return shown();
    }
    QString shown() const
    {
        QStringList names;
        for (const FilelistItemPtr &file : list.arranged().files())
            names.append(file->prefixedPath());
        const FilelistItemPtr &current = list.worker().currentFile();
        return names.join(u' ') + u'|' + (current ? current->prefixedPath() : QString());
    }
    int rowOf(const QString &name) const
    {
        const auto &files = list.arranged().files();
        const auto found
            = std::ranges::find(files, name, [](const auto &file) { return file->prefixedPath(); });
        return found == files.end() ? -1 : static_cast<int>(found - files.begin());
    }
};

} // namespace

TEST_F(FilteredList, EachCriterionNarrowsAndAllCount)
{
    const QString all = u"movie.mp4 none.mkv notes.txt photo.jpg tone.wav|movie.mp4"_s;
    EXPECT_EQ(shown(), all);
    EXPECT_EQ(shown({.hideUnknownFiles = true}), u"movie.mp4 none.mkv photo.jpg tone.wav|movie.mp4"_s)
        << "a failed file is not an unknown one";
    EXPECT_EQ(shown({.filenameText = u"OT"_s}), u"notes.txt photo.jpg|notes.txt"_s);
    EXPECT_EQ(shown({.hideUnknownFiles = true, .filenameText = u"ot"_s}), u"photo.jpg|photo.jpg"_s);
    EXPECT_EQ(shown({.filenameText = folder.path().section(u'/', 1, 1)}), u"|"_s)
        << "not above what was handed in";
    EXPECT_EQ(shown({.globalText = u"pcm"_s}), u"tone.wav|tone.wav"_s);
    EXPECT_EQ(shown({.filenameText = u"photo"_s, .globalText = u"pcm"_s}), u"|"_s);
    EXPECT_FALSE(list.canExportAll()) << "nothing is shown";
    EXPECT_EQ(shown({}), all) << "who was looked at first is back";
    EXPECT_TRUE(list.canExportAll());
}

TEST_F(FilteredList, KeepsWhatIsSelectedAndComesBackToWhatWasLookedAt)
{
    list.selectRow(rowOf(u"photo.jpg"_s));
    EXPECT_EQ(shown({.filenameText = u"o"_s}).section(u'|', 1), u"photo.jpg"_s);
    EXPECT_EQ(shown({.filenameText = u"mo"_s}).section(u'|', 1), u"movie.mp4"_s);
    EXPECT_EQ(shown({.filenameText = u"mox"_s}), u"|"_s);
    EXPECT_EQ(shown({.filenameText = u"m"_s}).section(u'|', 1), u"movie.mp4"_s);
    EXPECT_EQ(shown({}).section(u'|', 1), u"photo.jpg"_s);

    EXPECT_EQ(shown({.filenameText = u"mo"_s}).section(u'|', 1), u"movie.mp4"_s);
    list.filtering().setCriteria({.filenameText = u"n"_s});
    list.selectRow(rowOf(u"tone.wav"_s));
    EXPECT_EQ(shown({}).section(u'|', 1), u"tone.wav"_s) << "the user has chosen since";
    list.selection().selectFiles(list.filelist());
    EXPECT_EQ(shown({.filenameText = u"ot"_s}).section(u'|', 1), u"notes.txt"_s) << "of what is left";
    EXPECT_EQ(list.selectedCount(), list.arranged().rowCount());
}

TEST_F(FilteredList, FilesPassAsTheyAreRead)
{
    EXPECT_EQ(shown({.globalText = u"jpeg"_s}), u"photo.jpg|photo.jpg"_s);
    list.processAdditionalFiles({test::sample(u"profiled.png"_s), test::sample(u"photo.jpg"_s)});
    ASSERT_TRUE(spinUntil([this] { return list.arranged().rowCount() == 2; }));
    EXPECT_EQ(shown(), u"photo.jpg photo.jpg|photo.jpg"_s);

    // A file with another content under the same name.
    const QString path = folder / u"change.jpg"_s;
    ASSERT_TRUE(QFile::copy(test::sample(u"tone.wav"_s), path));
    list.processAdditionalFiles({path});
    ASSERT_TRUE(spinUntil([this] { return list.filelist().size() == 8; }) && awaitDone());
    ASSERT_TRUE(QFile::remove(path) && QFile::copy(test::sample(u"photo.jpg"_s), path));
    list.refreshAll();
    EXPECT_TRUE(spinUntil([this] { return list.arranged().rowCount() == 3; }));
    EXPECT_EQ(rowOf(u"change.jpg"_s), 2);

    list.selection().selectFiles(list.filelist());
    list.removeSelectedItems();
    EXPECT_EQ(shown(), u"|"_s);
    list.undoRemoval();
    ASSERT_TRUE(awaitDone());
    EXPECT_TRUE(spinUntil([this] { return list.arranged().rowCount() == 3; })) << "what comes back is asked";
    EXPECT_EQ(shown({.hideUnknownFiles = true, .globalText = u"jpeg"_s}).section(u'|', 1), u"photo.jpg"_s);
}

TEST_F(FilteredList, TheNewestSearchWins)
{
    list.filtering().setCriteria({.globalText = u"pcm"_s});
    list.filtering().setCriteria({.globalText = u"jpeg"_s});
    EXPECT_TRUE(list.filtering().isSearching());
    EXPECT_EQ(list.arranged().rowCount(), 5) << "the list stays until there is an answer";
    EXPECT_EQ(shown({.globalText = u"jpeg"_s}), u"photo.jpg|photo.jpg"_s);
    list.filtering().setCriteria({.filenameText = u"ot"_s, .globalText = u"pcm"_s});
    list.filtering().cancelSearch();
    EXPECT_FALSE(list.filtering().isSearching());
    EXPECT_EQ(list.filtering().criteria(), (FilelistFilter{.filenameText = u"ot"_s}));
    EXPECT_EQ(list.arranged().rowCount(), 2);
}

TEST_F(FilteredList, ManyRowsComeAndGoAtOnce)
{
    for (int i = 0; i < 400; ++i)
        folder.write(u"many/%1.txt"_s.arg(i));
    list.processFiles({folder / u"many"_s});
    ASSERT_TRUE(spinUntil([this] { return list.filelist().size() == 400; }));
    list.selectRow(77);
    const FilelistItemPtr current = list.worker().currentFile();
    int resets = 0;
    QObject::connect(&list.arranged(), &QAbstractItemModel::rowsRemoved, &list, [&resets] { ++resets; });
    EXPECT_TRUE(shown({.filenameText = u"7.t"_s}).endsWith(u"|77.txt"_s)) << shown().toStdString();
    EXPECT_EQ(list.arranged().rowCount(), 40);
    EXPECT_EQ(resets, 0) << "not a run at a time";
    EXPECT_EQ(list.selectedRows(), std::vector{7});
    EXPECT_EQ(list.arranged().files()[7], current);
    list.filtering().setCriteria({});
    EXPECT_EQ(list.selectedRows(), std::vector{77});
}

} // namespace quorvin
