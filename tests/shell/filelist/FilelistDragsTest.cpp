// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistDrags.h"

#include "platform/FileUri.h"
#include "platform/NativePath.h"
#include "shell/app/AppController.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/window/MainView.h"
#include "shell/window/MainWindowController.h"
#include "support/Events.h"
#include "support/TestFolder.h"

#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QSysInfo>
#include <QUrl>
#include <QWindow>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

constexpr Qt::KeyboardModifiers kControl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers kShift = Qt::ShiftModifier;

/// Two windows of one run, "a b c d e" in the first and "x y" in the second.
struct FilelistDrag : testing::Test {
    test::TestFolder folder;
    Settings settings{folder / u"settings.ini"_s};
    AppController application{settings};
    MainWindowController *from = application.openEmptyWindow();
    MainWindowController *to = application.openEmptyWindow();

    void SetUp() override { fill(); }
    void fill() const
    {
        fill(from, u"a b c d e"_s);
        fill(to, u"x y"_s);
    }
    void fill(MainWindowController *window, const QString &names) const
    {
        window->files().processFiles(made(names));
        ASSERT_TRUE(spinUntil([&] { return !window->files().isWalking() && files(window) == names; }));
    }
    QStringList made(const QString &names) const
    {
        QStringList paths;
        for (const QString &name : names.split(u' '))
            paths.append(folder.write(name));
        return paths;
    }
    static QString files(MainWindowController *window)
    {
        QStringList names;
        for (const FilelistItemPtr &file : window->files().filelist())
            names.append(file->prefixedPath());
        return names.join(u' ');
    }
    static void select(MainWindowController *window, std::initializer_list<int> rows)
    {
        QItemSelection selection;
        for (const int row : rows) {
            const QModelIndex index = window->files().arranged().index(row, 0);
            selection.select(index, index);
        }
        window->files().selection().select(selection, QItemSelectionModel::ClearAndSelect);
    }
    static QString selected(MainWindowController *window)
    {
        QStringList names;
        for (const int row : window->files().selectedRows())
            names.append(window->files().arranged().fileAt(row)->prefixedPath());
        return names.join(u' ');
    }
    /// On the upper edge of that row, or below the last one.
    static QPoint above(MainWindowController *window, int row)
    {
        FilelistTable &table = window->myView().table();
        const QRect place = table.visualRect(table.model()->index(row, 0));
        return place.isValid() ? place.topLeft() + QPoint(5, 2) : QPoint(5, table.viewport()->height() - 3);
    }
    /// Drags over the list of the window and drops there; gives the action that the source is told, none when
    /// the drop is refused.
    static Qt::DropAction drop(MainWindowController *window, const QMimeData &content, const QPoint &position,
                               Qt::KeyboardModifiers modifiers = {},
                               Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction)
    {
        QWidget *viewport = window->myView().table().viewport();
        QDragEnterEvent enter(position, offered, &content, Qt::LeftButton, modifiers);
        QApplication::sendEvent(viewport, &enter);
        QDragMoveEvent move(position, offered, &content, Qt::LeftButton, modifiers);
        QApplication::sendEvent(viewport, &move);
        if (!move.isAccepted())
            return Qt::IgnoreAction;
        QDropEvent end(position, offered, &content, Qt::LeftButton, modifiers);
        QApplication::sendEvent(viewport, &end);
        return end.isAccepted() ? end.dropAction() : Qt::IgnoreAction;
    }
    std::unique_ptr<QMimeData> dragged(std::initializer_list<int> rows) const
    {
        select(from, rows);
        return from->drags().begin();
    }
};

} // namespace

TEST_F(FilelistDrag, RowsChangeTheirPlacesTogether)
{
    struct Case {
        std::initializer_list<int> rows;
        int before;
        QString files;
    };
    for (const Case &one :
         {Case{{1}, 4, u"a c d b e"_s}, Case{{3}, 0, u"d a b c e"_s}, Case{{0, 2, 4}, 3, u"b a c e d"_s},
          Case{{0, 1}, 5, u"c d e a b"_s}, Case{{1, 2}, 2, u"a b c d e"_s}}) {
        fill();
        const auto content = dragged(one.rows);
        const QString names = selected(from);
        EXPECT_EQ(drop(from, *content, above(from, one.before)), Qt::CopyAction);
        EXPECT_EQ(files(from), one.files);
        EXPECT_EQ(selected(from), names);
        EXPECT_FALSE(application.session().draggingSource);
    }
}

TEST_F(FilelistDrag, AnotherWindowsRowsMoveAndAreCopiedOrReplace)
{
    struct Case {
        Qt::KeyboardModifiers modifiers;
        QString target;
        QString source;
    };
    for (const Case &one :
         {Case{{}, u"x b d y"_s, u"a c e"_s}, Case{kControl, u"x b d y"_s, u"a b c d e"_s},
          Case{kShift, u"b d"_s, u"a c e"_s}, Case{kShift | kControl, u"b d"_s, u"a b c d e"_s}}) {
        fill();
        const auto content = dragged({1, 3});
        EXPECT_EQ(drop(to, *content, above(to, 1), one.modifiers), Qt::CopyAction);
        EXPECT_TRUE(spinUntil([&] { return files(to) == one.target; })) << files(to).toStdString();
        EXPECT_TRUE(spinUntil([&] { return files(from) == one.source; })) << files(from).toStdString();
    }
    fill();
    const auto content = dragged({0});
    drop(to, *content, above(to, 9));
    EXPECT_TRUE(spinUntil([&] { return files(to) == u"x y a"_s; })) << "at its end";
}

TEST_F(FilelistDrag, WhoeverMustBeAskedDecidesWhatIsReplaced)
{
    std::function<void()> held;
    to->drags().setReplacing([&held](const auto &replace) { held = replace; });
    fill();
    const auto content = dragged({1});
    drop(to, *content, above(to, 0), kShift);
    ASSERT_TRUE(spinUntil([&held] { return held != nullptr; }));
    EXPECT_EQ(files(to), u"x y"_s);
    EXPECT_EQ(files(from), u"a b c d e"_s);
    held();
    EXPECT_TRUE(spinUntil([this] { return files(to) == u"b"_s && files(from) == u"a c d e"_s; }));
}

TEST_F(FilelistDrag, RowsOfAWindowThatIsNotKnownAreCopied)
{
    for (const Qt::KeyboardModifiers modifiers : {Qt::KeyboardModifiers(), kControl}) {
        fill();
        const auto content = dragged({0});
        application.session().draggingSource = nullptr;
        EXPECT_EQ(drop(to, *content, above(to, 0), modifiers), Qt::CopyAction);
        EXPECT_TRUE(spinUntil([&] { return files(to) == u"a x y"_s; }));
        EXPECT_EQ(files(from), u"a b c d e"_s);
    }
}

TEST_F(FilelistDrag, FilesOfOtherProgramsGoBetweenTheRowsOrReplaceThem)
{
    QMimeData content;
    content.setUrls({QUrl::fromLocalFile(made(u"n"_s).front())});
    EXPECT_EQ(drop(to, content, above(to, 1)), Qt::CopyAction);
    EXPECT_TRUE(spinUntil([&] { return files(to) == u"x n y"_s; }));
    const QRect row = to->myView().table().visualRect(to->files().arranged().index(1, 0));
    EXPECT_EQ(drop(to, content, row.center()), Qt::IgnoreAction) << "on a row, not between two";
    EXPECT_EQ(drop(to, content, above(to, 9), kControl), Qt::CopyAction);
    EXPECT_TRUE(spinUntil([&] { return files(to) == u"x n y n"_s; }));
    EXPECT_EQ(drop(to, content, row.center(), kShift), Qt::CopyAction) << "the whole list is the place";
    EXPECT_TRUE(spinUntil([&] { return files(to) == u"n"_s; }));
    QMimeData text;
    text.setText(u"n"_s);
    EXPECT_EQ(drop(to, text, above(to, 0)), Qt::IgnoreAction);
}

TEST_F(FilelistDrag, IsACopyToASourceThatOffersAMoveAlone)
{
    QMimeData content;
    content.setUrls({QUrl::fromLocalFile(made(u"n"_s).front())});
    EXPECT_EQ(drop(to, content, above(to, 0), kShift, Qt::MoveAction), Qt::IgnoreAction)
        << "refused where it would be told a move";
    // As the toolkit brings it, by the window of the system.
    const QPoint position = to->myView().mapTo(to, QPoint(500, 200));
    QDragMoveEvent move(position, Qt::MoveAction, &content, Qt::LeftButton, kShift);
    QDragEnterEvent enter(position, Qt::MoveAction, &content, Qt::LeftButton, kShift);
    QApplication::sendEvent(to->windowHandle(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QApplication::sendEvent(to->windowHandle(), &move);
    EXPECT_EQ(move.dropAction(), Qt::CopyAction);
    const auto hints = to->myView().findChildren<QLabel *>();
    const auto isTold = [&](const QString &part) {
        return std::ranges::any_of(
            hints, [&](const QLabel *label) { return label->isVisible() && label->text().contains(part); });
    };
    EXPECT_TRUE(isTold(u"replace the list"_s));
    QDropEvent end(position, Qt::MoveAction, &content, Qt::LeftButton, kShift);
    QApplication::sendEvent(to->windowHandle(), &end);
    EXPECT_TRUE(end.isAccepted());
    EXPECT_EQ(end.dropAction(), Qt::CopyAction);
    EXPECT_FALSE(isTold(u"replace the list"_s));
    EXPECT_TRUE(spinUntil([&] { return files(to) == u"n"_s; }));
}

TEST_F(FilelistDrag, BesideTheListAnotherWindowsRowsAreTakenAndItsOwnAreNot)
{
    const auto dropBeside = [](MainWindowController *window, const QMimeData &content) {
        const QPoint position = window->myView().mapTo(window, QPoint(500, 200));
        QDragEnterEvent enter(position, Qt::CopyAction, &content, Qt::LeftButton, {});
        QApplication::sendEvent(window->windowHandle(), &enter);
        QDropEvent end(position, Qt::CopyAction, &content, Qt::LeftButton, {});
        if (enter.isAccepted())
            QApplication::sendEvent(window->windowHandle(), &end);
        return enter.isAccepted() && end.isAccepted();
    };
    auto content = dragged({1, 3});
    EXPECT_FALSE(dropBeside(from, *content));
    EXPECT_EQ(drop(from, *content,
                   from->myView().table().visualRect(from->files().arranged().index(3, 0)).center()),
              Qt::IgnoreAction)
        << "on a row, not between two";
    EXPECT_EQ(files(from), u"a b c d e"_s);
    EXPECT_TRUE(dropBeside(to, *content));
    EXPECT_TRUE(spinUntil([&] { return files(to) == u"x y b d"_s && selected(to) == u"b"_s; }))
        << files(to).toStdString();
    EXPECT_TRUE(spinUntil([&] { return files(from) == u"a c e"_s; })) << "they have moved";
}

TEST_F(FilelistDrag, TakesFoldersAndNamesOfAnyBytes)
{
    made(u"f/one"_s);
    const QByteArray folderUri = "file://" + QSysInfo::machineHostName().toUtf8()
        + QUrl::fromLocalFile(folder / u"f"_s).path().toUtf8();
    const QString odd = folder.write(decodePath("a%20\xff\xc3\xa9"));
    QMimeData content;
    content.setData(u"text/uri-list"_s,
                    folderUri + "\r\nfile://other" + odd.toUtf8() + "\r\n" + uriListOf({odd}));
    EXPECT_EQ(drop(to, content, above(to, 1)), Qt::CopyAction);
    EXPECT_TRUE(spinUntil([&] { return to->files().filelist().size() == 4; })) << files(to).toStdString();
    QStringList paths;
    for (const FilelistItemPtr &file : to->files().filelist())
        paths.append(file->filename());
    EXPECT_TRUE(paths.contains(odd));
    EXPECT_TRUE(paths.contains(folder / u"f/one"_s));
}

TEST_F(FilelistDrag, WhatHasLeftTheListMeanwhileStaysAway)
{
    const auto content = dragged({1, 2});
    drop(to, *content, above(to, 0));
    select(from, {0, 1});
    from->files().removeSelectedItems();
    EXPECT_TRUE(spinUntil([&] { return files(to) == u"b c x y"_s; }));
    EXPECT_TRUE(spinUntil([&] { return files(from) == u"d e"_s; })) << files(from).toStdString();
    EXPECT_EQ(content->formats().size(), 2);
}

} // namespace quorvin
