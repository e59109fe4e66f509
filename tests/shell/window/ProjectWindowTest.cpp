// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/FactKeeping.h"
#include "projects/ProjectReader.h"
#include "projects/ProjectWriter.h"
#include "shell/commands/CommandSet.h"
#include "shell/compare/ComparisonView.h"
#include "shell/info/ExtendedPane.h"
#include "shell/info/InfoView.h"
#include "shell/window/MainView.h"
#include "shell/window/OneWindow.h"
#include "shell/window/StatusLine.h"
#include "shell/window/WindowProject.h"
#include "support/Events.h"

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::sample;
using test::spinUntil;

namespace {

struct ProjectWindow : test::OneWindow {
    QString path = folder / u"trip.quorvinproj"_s;

    /// Copies of a sample under these names, in a project that is on the disk.
    Project makeProject(const QStringList &names) const
    {
        Project project;
        for (const QString &name : names)
            project.files.push_back(
                {.path = folder.write(u"in/"_s + name, test::contentOf(sample(u"tone.wav"_s)))});
        keepFacts(project, false);
        EXPECT_TRUE(saveProject(project, path));
        return project;
    }
    void open(const QString &project) const
    {
        window->processUrls({project});
        ASSERT_TRUE(spinUntil([&] { return window->project().name() == u"trip"_s && isRead(); }));
    }
    bool isRead() const { return window->worker().processingIsDone() && !window->files().isReading(); }
    QStringList names(MainWindowController *of) const
    {
        QStringList names;
        for (const FilelistItemPtr &file : of->files().filelist())
            names.append(file->prefixedPath());
        return names;
    }
    QMessageBox *question() const { return window->findChild<QMessageBox *>(); }
    void answer(const QString &button) const
    {
        ASSERT_TRUE(spinUntil([this] { return question() && question()->isVisible(); }));
        for (QAbstractButton *each : question()->buttons()) {
            if (each->text().remove(u'&') == button)
                return each->click();
        }
        FAIL() << "no button " << button.toStdString();
    }
    bool says(const QString &text) const
    {
        return spinUntil([&] { return window->myView().statusLine().saying() == text; });
    }
};

} // namespace

TEST_F(ProjectWindow, ComesBackAsItWasSaved)
{
    Project project = makeProject({u"b.wav"_s, u"a.wav"_s, u"c.wav"_s});
    project.tab = u"comparison"_s;
    project.filter = {.rule = u"fileType = 'Audio'"_s, .name = u"wav"_s};
    project.watched = {{u"Audio"_s, 0, u"Format"_s, u"Format"_s}};
    project.comparison
        = {.columns = QStringList{project.files[2].path, project.files[0].path}, .rows = u"equal"_s};
    ASSERT_TRUE(saveProject(project, path));
    open(path);
    // The rule looks into the files, elsewhere.
    ASSERT_TRUE(spinUntil([this] { return window->files().arranged().rowCount() == 3; }));
    EXPECT_EQ(names(window), (QStringList{u"b.wav"_s, u"a.wav"_s, u"c.wav"_s}));
    EXPECT_EQ(window->currentTab(), Tab::Comparison);
    EXPECT_EQ(window->files().filtering().criteria().filenameText, u"wav"_s);
    EXPECT_FALSE(window->files().filtering().criteria().rule.isEmpty());
    InfoView &info = window->myView().info();
    EXPECT_EQ(info.extended().watched().size(), 1U);
    EXPECT_EQ(settings.string(Setting::watchedParameters), QString()) << "other windows keep their own";
    EXPECT_EQ(info.comparison().filter(), ComparisonFilter::Equal);
    EXPECT_EQ(info.comparison().columns(window->files().filelist()), *project.comparison.columns);
    EXPECT_EQ(window->windowTitle(), u"b.wav — trip"_s);
    EXPECT_EQ(application.session().recentFiles.paths().value(0), path);
    EXPECT_FALSE(window->project().hasChanges());

    // Written from the window it is the same again.
    window->commands().run(Command::saveProject);
    ASSERT_TRUE(says(u"Saved “trip.quorvinproj”"_s));
    const auto written = readProject(path);
    ASSERT_TRUE(written);
    EXPECT_EQ(written->files, project.files);
    EXPECT_EQ(written->comparison, project.comparison);
    EXPECT_EQ(written->watched, project.watched);
    EXPECT_EQ(written->filter, project.filter);
    EXPECT_EQ(written->tab, project.tab);
}

TEST_F(ProjectWindow, AsksBeforeItClosesWithChanges)
{
    makeProject({u"a.wav"_s, u"b.wav"_s});
    const QByteArray before = test::contentOf(path);
    open(path);
    window->files().moveFiles({0}, 2);
    EXPECT_TRUE(window->project().hasChanges());
    EXPECT_FALSE(window->close());
    answer(u"Cancel"_s);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(test::contentOf(path), before);
    application.quit();
    answer(u"Save"_s);
    ASSERT_TRUE(spinUntil([this] { return application.windows().empty(); }));
    EXPECT_EQ(readProject(path)->files[0].path, folder / u"in/b.wav"_s);
}

TEST_F(ProjectWindow, LeavesTheProjectAloneUnlessItIsSaved)
{
    makeProject({u"a.wav"_s, u"b.wav"_s});
    const QByteArray before = test::contentOf(path);
    open(path);
    window->files().filtering().setCriteria({.filenameText = u"v"_s});
    window->processUrls({sample(u"movie.mp4"_s)});
    answer(u"Don’t Save"_s);
    ASSERT_TRUE(spinUntil([this] { return names(window) == QStringList{u"movie.mp4"_s} && isRead(); }));
    EXPECT_EQ(window->project().name(), QString());
    EXPECT_EQ(window->windowTitle(), u"movie.mp4"_s);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(test::contentOf(path), before);
}

TEST_F(ProjectWindow, ThatCannotBeReadChangesNothing)
{
    const QByteArray newer = R"({"format": "quorvinproj", "version": 2})";
    folder.write(u"trip.quorvinproj"_s, newer);
    window->files().processFiles({sample(u"tone.wav"_s)});
    ASSERT_TRUE(spinUntil([this] { return !names(window).isEmpty() && isRead(); }));
    window->processUrls({path});
    ASSERT_TRUE(spinUntil([this] { return question() && question()->isVisible(); }));
    EXPECT_EQ(question()->informativeText(), u"the project was written by a newer Quorvin"_s);
    EXPECT_EQ(names(window), QStringList{u"tone.wav"_s});
    EXPECT_EQ(window->project().name(), QString());
    EXPECT_TRUE(window->close());
    EXPECT_EQ(test::contentOf(path), newer);
}

TEST_F(ProjectWindow, AddedToAListOpensInAWindowOfItsOwn)
{
    makeProject({u"a.wav"_s});
    window->files().processFiles({sample(u"tone.wav"_s)});
    ASSERT_TRUE(spinUntil([this] { return !names(window).isEmpty() && isRead(); }));
    window->files().processAdditionalFilesAndSelectFirst({path});
    ASSERT_TRUE(spinUntil([this] { return application.windows().size() == 2; }));
    MainWindowController *other = application.windows().back();
    EXPECT_TRUE(spinUntil([&] { return names(other) == QStringList{u"a.wav"_s}; }));
    EXPECT_EQ(names(window), QStringList{u"tone.wav"_s});
}

TEST_F(ProjectWindow, TellsWhatHasChangedAndFindsWhatIsMissing)
{
    makeProject({u"a.wav"_s, u"b.wav"_s, u"c.wav"_s});
    folder.write(u"in/a.wav"_s, "short");
    folder.write(u"in/new.wav"_s);
    ASSERT_TRUE(QFile::rename(folder / u"in/b.wav"_s, folder / u"b.wav"_s));
    open(path);
    EXPECT_TRUE(says(u"Since the project was saved: 1 changed, 1 vanished, 1 new"_s));
    const QModelIndex changed = window->files().arranged().index(0, 0);
    EXPECT_TRUE(
        changed.data(Qt::AccessibleTextRole).toString().contains(u"Changed since the project was saved"_s));
    const FilelistItemPtr missing = window->files().filelist().at(1);
    EXPECT_TRUE(missing->isFailed());
    EXPECT_EQ(missing->failureReason(), u"The file is missing"_s);

    window->commands().run(Command::relinkMissing);
    auto *dialog = window->findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    Q_EMIT dialog->fileSelected(folder.path());
    dialog->reject();
    ASSERT_TRUE(says(u"1 of 1 file found"_s));
    ASSERT_TRUE(spinUntil([this] { return isRead(); }));
    EXPECT_EQ(window->files().filelist().at(1)->filename(), folder / u"b.wav"_s);
    EXPECT_TRUE(window->files().filelist().at(1)->quorvinData());
    EXPECT_EQ(names(window), (QStringList{u"a.wav"_s, u"b.wav"_s, u"c.wav"_s}));
    EXPECT_TRUE(window->project().hasChanges());
    window->project().forgetChanges();
}

} // namespace quorvin
