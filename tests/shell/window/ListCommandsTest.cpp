// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileUri.h"
#include "shell/exporting/ExportController.h"
#include "shell/exporting/ExportSheet.h"
#include "shell/window/SampleWindow.h"
#include "shell/window/StatusLine.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

/// Stands in for the desktop.
struct Opener {
    QStringList opened;
    QFileDialog relay; ///< an object that can be called with an address, and tells it

    Opener()
    {
        QObject::connect(&relay, &QFileDialog::urlSelected,
                         [this](const QUrl &url) { opened.append(url.toLocalFile()); });
        QDesktopServices::setUrlHandler(u"file"_s, &relay, "urlSelected");
    }
    ~Opener() { QDesktopServices::unsetUrlHandler(u"file"_s); }
};

struct CommandsOfTheList : test::SampleWindow {
    StatusLine &status = window->myView().statusLine();
};

} // namespace

TEST_F(CommandsOfTheList, FilesArePasted)
{
    auto *content = new QMimeData;
    content->setData(u"text/uri-list"_s, uriListOf({folder.write(u"a b%20.txt"_s), folder.write(u"c"_s)}));
    QApplication::clipboard()->setMimeData(content);
    run(Command::paste);
    ASSERT_TRUE(spinUntil([this] { return window->files().filelist().size() == 5; }));
    EXPECT_EQ(selected(), u"3"_s);
    EXPECT_EQ(window->files().filelist()[3]->filename(), folder / u"a b%20.txt"_s);
    QApplication::clipboard()->setText(u"/no/file"_s);
    run(Command::paste);
    EXPECT_FALSE(status.saying().isEmpty());
    EXPECT_FALSE(window->files().isWalking());
}

TEST_F(CommandsOfTheList, FilesAreFoundByTheirNames)
{
    const QStringList paths{folder.write(u"d/Beta.txt"_s), folder.write(u"d/alpha.txt"_s),
                            folder.write(u"d/e/albatross.txt"_s), folder.write(u"d/b.txt"_s)};
    window->files().processFiles({folder / u"d"_s});
    ASSERT_TRUE(spinUntil([this] { return window->files().filelist().size() == 4; }));
    const auto typed = [&](const QString &text) {
        QTest::qWait(QApplication::keyboardInputInterval() + 1);
        for (const QChar letter : text)
            table->keyboardSearch(letter);
        return window->worker().currentFile()->filename();
    };
    EXPECT_EQ(typed(u"ALB"_s), paths[2]) << "its folder does not count";
    EXPECT_EQ(typed(u"bet"_s), paths[0]);
    EXPECT_EQ(typed(u"bb"_s), paths[0]) << "round to where it began";
    EXPECT_EQ(typed(u" x"_s), paths[0]);
}

TEST_F(CommandsOfTheList, ADoubleClickOrReturnOpensTheFile)
{
    const Opener desktop;
    const QRect row = table->visualRect(table->model()->index(1, 0));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_TRUE(desktop.opened.isEmpty());
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, row.center());
    QTest::keyClick(table, Qt::Key_Home);
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_EQ(desktop.opened, (QStringList{test::sample(u"movie.mp4"_s), test::sample(u"matroska.mkv"_s)}));
}

TEST_F(CommandsOfTheList, TheSelectionIsExportedAndTheDocumentShown)
{
    show({"movie.mp4", "none.wav", "tone.wav"});
    window->files().selection().select(table->model()->index(1, 0), QItemSelectionModel::Select);
    run(Command::exportSelection);
    auto *sheet = window->findChild<ExportSheet *>();
    ASSERT_TRUE(sheet);
    QStringList labels;
    for (const QLabel *label : sheet->findChildren<QLabel *>())
        labels.append(label->text());
    EXPECT_FALSE(labels.filter(u"1 of 2"_s).isEmpty()) << labels.join(u'|').toStdString();
    sheet->accept();
    auto *dialog = window->findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    const QString path = folder / u"out/one.txt"_s;
    folder.write(u"out/other"_s);
    Q_EMIT dialog->fileSelected(path);
    ASSERT_TRUE(spinUntil([&] { return status.saying().contains(u"one.txt"_s); }));
    const QByteArray written = test::contentOf(path);
    EXPECT_TRUE(written.contains("movie.mp4") && !written.contains("tone.wav"));

    const Opener desktop;
    for (QToolButton *button : status.findChildren<QToolButton *>()) {
        if (button->text() == u"Show"_s)
            button->click();
    }
    EXPECT_EQ(desktop.opened, QStringList{folder / u"out"_s}) << "there is no file manager to ask";
}

TEST_F(CommandsOfTheList, RecentFilesOfOneNameTellTheirFolders)
{
    application.session().recentFiles.note({u"/a/one.txt"_s, u"/b/one.txt"_s, u"/b/t&o.txt"_s});
    auto *recent = window->commands().menu(CommandMenu::File)->findChild<QMenu *>();
    Q_EMIT recent->aboutToShow();
    const QList<QAction *> entries = recent->actions();
    EXPECT_EQ(entries[0]->text(), u"one.txt — /a"_s);
    EXPECT_EQ(entries[1]->text(), u"one.txt — /b"_s);
    EXPECT_EQ(entries[2]->text(), u"t&&o.txt"_s);
}

} // namespace quorvin
