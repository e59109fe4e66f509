// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/commands/CommandSet.h"
#include "shell/commands/CommandTable.h"
#include "shell/filelist/FilelistDrags.h"
#include "shell/info/InfoView.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/window/MainView.h"
#include "shell/window/OneWindow.h"
#include "shell/window/SidebarSplitView.h"
#include "shell/window/StatusLine.h"
#include "support/Events.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTextDocument>
#include <QUrl>

#include <gtest/gtest.h>

namespace quorvin {

using test::spinUntil;

namespace {

struct Window : test::OneWindow {
    MainView *view = &window->myView();
    FilelistController *list = &window->files();

    QString files() const
    {
        QStringList names;
        for (const FilelistItemPtr &file : list->filelist())
            names.append(file->prefixedPath());
        return names.join(u' ');
    }
    QString currentName() const
    {
        return window->worker().currentFile() ? window->worker().currentFile()->prefixedPath() : QString();
    }
    bool awaitDone() const
    {
        return spinUntil([this] { return window->worker().processingIsDone() && !list->isWalking(); });
    }
    QString total() const
    {
        QStringList texts;
        for (const QLabel *label : view->statusLine().findChildren<QLabel *>()) {
            if (label->isVisibleTo(&view->statusLine()))
                texts.append(label->text());
        }
        return texts.join(u'|');
    }
    /// Drops the paths on the window, as a file manager does, and waits for the list to change.
    void drop(const QStringList &paths, Qt::KeyboardModifiers modifiers) const
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
        QDragEnterEvent enter(QPoint(5, 5), offered, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(window, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(5, 5), offered, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(window, &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction) << "nobody is to remove the source";
        int changes = 0;
        const auto connection = QObject::connect(list, &FilelistController::windowArrangedFilelistDidChange,
                                                 [&changes] { ++changes; });
        EXPECT_TRUE(spinUntil([&] { return changes > 0; }));
        QObject::disconnect(connection);
    }
};

} // namespace

TEST_F(Window, StartsEmptyAndShowsWhatItIsGiven)
{
    EXPECT_TRUE(window->isUntouched());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Quorvin"));
    window->processUrls(
        {test::sample(QStringLiteral("movie.mp4")), test::sample(QStringLiteral("tone.wav"))});
    ASSERT_TRUE(awaitDone());
    EXPECT_EQ(files(), QStringLiteral("movie.mp4 tone.wav"));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("movie.mp4"));
    // Behind it may stand where the movie was recorded.
    ASSERT_TRUE(spinUntil([this] { return total().startsWith(QStringLiteral("00:00:03 in 2 files")); }))
        << total().toStdString();
    EXPECT_FALSE(window->isUntouched());
    EXPECT_EQ(application.session().recentFiles.paths().size(), 2);
    EXPECT_TRUE(list->canExportAll());
}

TEST_F(Window, FailedFilesStayWithTheirReasonAndCanBeTriedAgain)
{
    const QString later = folder / QStringLiteral("later.wav");
    window->processUrls({later, test::sample(QStringLiteral("tone.wav"))});
    ASSERT_TRUE(awaitDone());
    EXPECT_EQ(files(), QStringLiteral("later.wav tone.wav"));
    EXPECT_TRUE(list->filelist()[0]->isFailed());
    EXPECT_FALSE(list->filelist()[0]->failureReason().isEmpty());
    EXPECT_FALSE(window->commands().action(Command::copyGeneralInfo)->isEnabled());

    folder.write(QStringLiteral("later.wav"), test::contentOf(test::sample(QStringLiteral("tone.wav"))));
    window->commands().run(Command::refreshInfo);
    const QAction *copy = window->commands().action(Command::copyGeneralInfo);
    ASSERT_TRUE(spinUntil([copy] { return copy->isEnabled(); }));
    EXPECT_FALSE(list->filelist()[0]->isFailed());
    EXPECT_EQ(window->worker().countProcessed(), 2) << "a refreshed file counts once";
    window->commands().run(Command::copyGeneralInfo);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(QStringLiteral("later.wav\n---------\n")));
}

TEST_F(Window, DropsJoinTheListAndWithShiftReplaceIt)
{
    for (const char *name : {"a/1.txt", "a/2.txt", "a/10.txt", "b.txt", "c.txt"})
        folder.write(QLatin1String(name));
    drop({folder / QStringLiteral("a")}, Qt::NoModifier);
    EXPECT_EQ(files(), QStringLiteral("1.txt 2.txt 10.txt"));
    drop({folder / QStringLiteral("c.txt"), folder / QStringLiteral("b.txt")}, Qt::NoModifier);
    EXPECT_EQ(files(), QStringLiteral("1.txt 2.txt 10.txt b.txt c.txt"));
    EXPECT_EQ(currentName(), QStringLiteral("b.txt")) << "the first of the new ones";
    drop({folder / QStringLiteral("c.txt")}, Qt::ShiftModifier);
    EXPECT_EQ(files(), QStringLiteral("c.txt"));
    ASSERT_TRUE(awaitDone());

    const auto own = window->drags().begin();
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, own.get(), Qt::LeftButton, Qt::NoModifier);
    enter.setAccepted(true);
    QApplication::sendEvent(window, &enter);
    EXPECT_FALSE(enter.isAccepted()) << "a list is not dropped on its own window";
}

TEST_F(Window, TheSelectedFileIsTheOneShown)
{
    for (int i = 0; i < 40; ++i)
        folder.write(QStringLiteral("d/%1.txt").arg(i));
    window->processUrls({folder / QStringLiteral("d")});
    ASSERT_TRUE(spinUntil([this] { return list->filelist().size() == 40; }));
    list->selectRow(35);
    EXPECT_EQ(currentName(), QStringLiteral("35.txt"));
    ASSERT_TRUE(spinUntil([this] { return list->canExport(); }));
    ASSERT_TRUE(awaitDone());

    list->selectRow(39);
    window->commands().run(Command::removeSelectedItems);
    EXPECT_EQ(list->filelist().size(), 39U);
    EXPECT_EQ(currentName(), QStringLiteral("38.txt"));
    EXPECT_EQ(window->worker().countToProcess(), 39);
    EXPECT_TRUE(QFile::exists(folder / QStringLiteral("d/39.txt")));
    list->showFileAtIndex(99);
    EXPECT_EQ(currentName(), QStringLiteral("38.txt"));
    for (int i = 0; i < 39; ++i)
        window->commands().run(Command::removeSelectedItems);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Quorvin"));
    EXPECT_FALSE(window->commands().action(Command::removeSelectedItems)->isEnabled());
}

TEST_F(Window, TabsKeepTheirSidebarsAndTheLastOneComesBack)
{
    SidebarSplitView &sidebar = view->sidebar();
    window->commands().run(Command::selectComparisonTab);
    EXPECT_TRUE(sidebar.isCollapsed()) << "Comparison starts without";
    sidebar.showSidebarWithoutAnimation();
    window->setCurrentTab(Tab::Extended);
    EXPECT_FALSE(sidebar.isCollapsed());
    sidebar.hideSidebarWithoutAnimation();
    window->setCurrentTab(Tab::Comparison);
    EXPECT_TRUE(sidebar.isCollapsed());
    window->setCurrentTab(Tab::Extended);
    EXPECT_FALSE(sidebar.isCollapsed()) << "General and Extended want it";
    window->close();
    EXPECT_EQ(settings.integer(Setting::lastTab), 1);
    EXPECT_EQ(application.openEmptyWindow()->currentTab(), Tab::Extended);
    settings.set(Setting::openTab, 4);
    EXPECT_EQ(application.openEmptyWindow()->currentTab(), Tab::Custom);
}

TEST_F(Window, EveryCommandHasAHandler)
{
    for (const CommandRow &row : commandTable())
        EXPECT_TRUE(window->commands().hasHandler(row.command)) << row.text;
}

TEST_F(Window, StreamLinesLeadToTheirGroups)
{
    window->processUrls({test::sample(QStringLiteral("movie.mp4"))});
    ASSERT_TRUE(awaitDone());
    ASSERT_TRUE(spinUntil([this] { return list->canExport(); }));
    Q_EMIT view->info().tabWanted(Tab::Extended);
    view->info().outline().showGroup(QStringLiteral("Audio"), 1);
    EXPECT_EQ(window->currentTab(), Tab::Extended);
    EXPECT_EQ(view->info().outline().currentIndex().data().toString(), QStringLiteral("Audio #2"));
    window->commands().run(Command::clickWrapLongLines);
    EXPECT_FALSE(settings.boolean(Setting::wrapLongLines));
    EXPECT_FALSE(window->commands().action(Command::clickWrapLongLines)->isChecked());
}

TEST_F(Window, ShowsNamesLetterByLetter)
{
    const QString odd = QStringLiteral("<img src=\"x\"><b>&amp;.wav");
    window->processUrls({folder / (QStringLiteral("<a>/") + odd)});
    ASSERT_TRUE(awaitDone());
    EXPECT_TRUE(list->filelist()[0]->isFailed());
    auto *recent = window->commands().menu(CommandMenu::File)->findChild<QMenu *>();
    ASSERT_TRUE(recent);
    Q_EMIT recent->aboutToShow();

    QStringList tips{list->arranged().index(0, 0).data(Qt::ToolTipRole).toString()};
    for (const QAction *action : recent->actions())
        tips.append(action->toolTip());
    for (const QWidget *widget : window->findChildren<QWidget *>())
        tips.append(widget->toolTip());
    for (const QString &tip : std::as_const(tips))
        EXPECT_TRUE(!Qt::mightBeRichText(tip) || !tip.contains(QStringLiteral("<img"))) << tip.toStdString();
    EXPECT_TRUE(tips.front().contains(QStringLiteral("&lt;img src=&quot;x&quot;&gt;&lt;b&gt;&amp;amp;.wav")))
        << tips.front().toStdString();
    for (const QLabel *label : window->findChildren<QLabel *>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
}

TEST_F(Window, OpenRequestsTakeTheUntouchedWindowOrANewOne)
{
    const QString path = test::sample(QStringLiteral("tone.wav"));
    QApplication::setActiveWindow(window);
    application.applicationOpenFiles({path});
    EXPECT_EQ(application.windows().size(), 1U);
    ASSERT_TRUE(awaitDone());
    application.applicationOpenFiles({path});
    EXPECT_EQ(application.windows().size(), 2U);
    application.activate();
    EXPECT_EQ(application.windows().size(), 2U) << "one is there already";
    application.windows().back()->close();
    window->close();
    EXPECT_TRUE(application.windows().empty());
    application.isReachable = true;
    application.activate();
    EXPECT_EQ(application.windows().size(), 1U);
}

TEST_F(Window, OpenRequestsLeaveAWindowAloneThatShowsFiles)
{
    const QString path = test::sample(QStringLiteral("tone.wav"));
    window->processUrls({path, test::sample(QStringLiteral("movie.mp4"))});
    ASSERT_TRUE(spinUntil([this] { return list->filelist().size() == 2; }) && awaitDone());
    list->processAdditionalFilesAndSelectFirst({path});
    ASSERT_TRUE(spinUntil([this] { return list->filelist().size() == 3; }) && awaitDone());
    window->commands().run(Command::removeSelectedItems);
    ASSERT_EQ(list->filelist().size(), 2U);
    EXPECT_FALSE(window->isUntouched()) << "though nothing is left to be read";
    QApplication::setActiveWindow(window);
    application.applicationOpenFiles({path});
    EXPECT_EQ(application.windows().size(), 2U);
    list->selectRow(0);
    window->commands().run(Command::removeSelectedItems);
    window->commands().run(Command::removeSelectedItems);
    EXPECT_TRUE(window->isUntouched());
}

TEST_F(Window, TellsWhatAWalkCouldNotReadAndThatAFolderIsEmpty)
{
    StatusLine &line = view->statusLine();
    list->processFiles({QString()});
    ASSERT_TRUE(spinUntil([&] { return !line.saying().isEmpty(); }));
    EXPECT_EQ(line.saying(), QStringLiteral("1 folder could not be read"));
    ASSERT_TRUE(QDir().mkdir(folder / QStringLiteral("hollow")));
    list->processFiles({folder / QStringLiteral("hollow")});
    ASSERT_TRUE(spinUntil([&] { return line.saying().contains(QStringLiteral("“hollow”")); }));
}

TEST_F(Window, ClosesWhileFilesAreRead)
{
    for (int i = 0; i < 300; ++i)
        folder.write(QStringLiteral("d/%1.txt").arg(i));
    window->processUrls({folder / QStringLiteral("d")});
    ASSERT_TRUE(spinUntil([this] { return window->worker().countProcessed() > 3; }));
    window->close();
    EXPECT_TRUE(application.windows().empty());
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(Window, AttributesCanBeRemovedFromTheFile)
{
    const QString path = folder.write(QStringLiteral("tagged.wav"),
                                      test::contentOf(test::sample(QStringLiteral("tone.wav"))));
    folder.setAttribute(path, "user.xdg.tags", "red");
    window->processUrls({path});
    ASSERT_TRUE(spinUntil([this] { return list->canExport() && window->worker().processingIsDone(); }));
    window->setCurrentTab(Tab::Extended);
    ExtendedOutline &outline = view->info().outline();
    const auto select = [&](const QString &key) {
        const QModelIndex group = outline.content().index(0, 0);
        for (int row = 0; row < outline.content().rowCount(group); ++row) {
            const QModelIndex index = outline.content().index(row, 0, group);
            if (outline.content().itemAt(index)->key() == key)
                outline.setCurrentIndex(index);
        }
    };
    const QAction *remove = window->commands().action(Command::removeExtendedAttribute);
    select(QStringLiteral("FileKind"));
    EXPECT_FALSE(remove->isVisible()) << "it stands only where it can do something";
    select(QStringLiteral("FileTags"));
    ASSERT_TRUE(remove->isEnabled());
    window->commands().run(Command::removeExtendedAttribute);
    auto *question = window->findChild<QMessageBox *>();
    ASSERT_TRUE(question);
    EXPECT_TRUE(question->defaultButton() == question->button(QMessageBox::Cancel)) << "the harmless one";
    for (QAbstractButton *button : question->buttons()) {
        if (button != question->button(QMessageBox::Cancel))
            button->click();
    }
    const auto tags = [this] {
        const QuorvinDataPtr record = window->worker().currentQuorvinData();
        return !record || record->generalInfo().fileTagNames;
    };
    EXPECT_TRUE(spinUntil([&] { return !tags(); }));
}

} // namespace quorvin
