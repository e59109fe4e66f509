// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/CoverView.h"
#include "shell/window/SampleWindow.h"
#include "shell/window/StatusLine.h"

#include <QDir>
#include <QFileDialog>
#include <QTest>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

struct ExtractionWindow : test::SampleWindow { };

} // namespace

TEST_F(ExtractionWindow, OpensCoversInAWindowOfTheirOwn)
{
    show({"tone.wav"});
    EXPECT_FALSE(canRun(Command::displayCovers));
    show({"two-covers.mp3"});
    ASSERT_TRUE(spinUntil([this] { return canRun(Command::displayCovers); }));
    QTest::mouseDClick(window->findChild<CoverView *>(), Qt::LeftButton);
    ASSERT_TRUE(spinUntil([this] { return application.windows().size() == 2; }));
    const FilelistController &files = application.windows().back()->files();
    ASSERT_TRUE(spinUntil([&] { return files.filelist().size() == 2; }));
    EXPECT_TRUE(files.filelist().front()->filename().startsWith(QDir::tempPath() + u'/'));
}

TEST_F(ExtractionWindow, SavesPreviewsIntoAFolder)
{
    show({"photo.jpg"});
    run(Command::extractPreviewsAndCover);
    auto *dialog = window->findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    folder.write(u"out/photo #1.jpg"_s);
    Q_EMIT dialog->fileSelected(folder / u"out"_s);
    const StatusLine &status = window->myView().statusLine();
    ASSERT_TRUE(spinUntil([&] { return status.saying().contains(u"photo #1 (1).jpg"_s); }));
    EXPECT_EQ(test::contentOf(folder / u"out/photo #1.jpg"_s), "x");
}

TEST_F(ExtractionWindow, SavesThePicturesOfAllSelectedFiles)
{
    show({"photo.jpg", "tone.wav", "two-covers.mp3"});
    window->files().selection().selectFiles(window->files().arranged().files());
    ASSERT_TRUE(spinUntil([this] { return window->files().selectedCount() == 3; }));
    run(Command::extractPreviewsAndCover);
    auto *dialog = window->findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"out"_s));
    Q_EMIT dialog->fileSelected(folder / u"out"_s);
    const StatusLine &status = window->myView().statusLine();
    ASSERT_TRUE(spinUntil([&] { return status.saying().contains(u"Saved 3 pictures."_s); }));
    EXPECT_EQ(QDir(folder / u"out"_s).entryList(QDir::Files).size(), 3);
    run(Command::displayCovers);
    ASSERT_TRUE(spinUntil([this] { return application.windows().size() == 2; }));
    const FilelistController &files = application.windows().back()->files();
    EXPECT_TRUE(spinUntil([&] { return files.filelist().size() == 3; }));
}

TEST_F(ExtractionWindow, SaysSoWhenNoneOfTheSelectedFilesHasPictures)
{
    show({"tone.wav", "tone.flac"});
    window->files().selection().selectFiles(window->files().arranged().files());
    ASSERT_TRUE(spinUntil([this] { return canRun(Command::extractPreviewsAndCover); }));
    run(Command::extractPreviewsAndCover);
    EXPECT_FALSE(window->findChild<QFileDialog *>());
    EXPECT_TRUE(window->myView().statusLine().saying().contains(u"no pictures"_s));
}

} // namespace quorvin
