// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/app/LastList.h"

#include "platform/NativePath.h"
#include "shell/app/AppController.h"
#include "shell/window/MainWindowController.h"
#include "support/Events.h"
#include "support/TestFolder.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

QStringList told(const std::vector<FilelistItemPtr> &files)
{
    QStringList lines;
    for (const FilelistItemPtr &file : files)
        lines.append(file->filename() + u" as "_s + file->prefixedPath());
    return lines;
}

/// Runs of the program, one after the other, with a state folder of their own.
struct LastListWindow : testing::Test {
    test::TestFolder folder;
    Settings settings{folder / u"settings.ini"_s};
    const QByteArray before = qgetenv("XDG_STATE_HOME");
    QString kept = folder / u"state/quorvin/last-list"_s;
    QString song = folder.write(u"song.wav"_s, test::contentOf(test::sample(u"tone.wav"_s)));
    QString gone = folder.write(u"gone.wav"_s);

    LastListWindow() { qputenv("XDG_STATE_HOME", (folder / u"state"_s).toUtf8()); }
    ~LastListWindow() override
    {
        if (before.isEmpty())
            qunsetenv("XDG_STATE_HOME");
        else
            qputenv("XDG_STATE_HOME", before);
    }
    /// A run with that list, up to its end.
    void runWith(const QStringList &paths)
    {
        AppController application(settings);
        application.doWorkInNewWindow(paths);
        ASSERT_TRUE(spinUntil([&] {
            return application.windows().front()->files().filelist().size()
                == static_cast<std::size_t>(paths.size());
        }));
        application.quit();
    }
};

} // namespace

TEST_F(LastListWindow, KeepsPathsByteForByte)
{
    const QString odd = decodePath("/films/\xff\n of 1\xc3\xa9.mkv");
    const std::vector<FilelistItemPtr> files{FilelistItem::itemWithFilename(odd, u"films/x"_s),
                                             FilelistItem::itemWithFilename(u"/a"_s, u"a"_s)};
    EXPECT_EQ(LastList::userPath(), kept);
    ASSERT_TRUE(LastList::write(kept, files));
    EXPECT_EQ(told(LastList::read(kept)), told(files));
    EXPECT_EQ(QFile::permissions(kept) & (QFile::ReadGroup | QFile::ReadOther), 0);
    ASSERT_TRUE(LastList::write(kept, {LastList::kMost + 1, files.back()}));
    EXPECT_EQ(LastList::read(kept).size(), LastList::kMost);
    ASSERT_TRUE(LastList::write(kept, {}));
    EXPECT_TRUE(LastList::read(kept).empty());
}

TEST_F(LastListWindow, TakesNothingFromWhatIsNoList)
{
    const QByteArray head("quorvin-last-list 1");
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("/a"), head + "\n", head + QByteArray("\0/a", 3),
          head + QByteArray("\0relative\0shown", 15), "quorvin-last-list 2" + QByteArray("\0/a\0a", 5)})
        EXPECT_TRUE(LastList::read(folder.write(u"list"_s, bytes)).empty()) << bytes.toStdString();
    EXPECT_TRUE(LastList::read(folder / u"none"_s).empty());
}

TEST_F(LastListWindow, ComesBackWhereThatIsWanted)
{
    runWith({song, gone});
    EXPECT_FALSE(QFile::exists(kept)) << "nobody wants it";
    settings.set(Setting::reopenLastList, true);
    runWith({song, gone});
    ASSERT_TRUE(spinUntil([this] { return LastList::read(kept).size() == 2; }));
    QFile::remove(gone);
    AppController application(settings);
    application.doWorkInNewWindow({});
    application.restoreLastList();
    const FilelistController &files = application.windows().front()->files();
    ASSERT_TRUE(spinUntil([&] { return files.filelist().size() == 2 && !files.isReading(); }));
    EXPECT_EQ(files.filelist()[0]->filename(), gone) << "as the list had them";
    EXPECT_TRUE(files.filelist()[0]->isFailed());
    EXPECT_FALSE(files.filelist()[0]->failureReason().isEmpty());
    EXPECT_TRUE(files.filelist()[1]->quorvinData());
    application.session().settings.set(Setting::reopenLastList, false);
    EXPECT_TRUE(spinUntil([this] { return !QFile::exists(kept); })) << "nothing is left of it";
}

} // namespace quorvin
