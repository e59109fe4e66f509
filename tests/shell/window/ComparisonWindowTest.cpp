// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonExportController.h"
#include "shell/compare/ComparisonExportSheet.h"
#include "shell/compare/ComparisonTable.h"
#include "shell/compare/ComparisonView.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/session/LiveSettings.h"
#include "shell/window/CompareCommands.h"
#include "shell/window/SampleWindow.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

struct ComparisonWindow : test::SampleWindow {
    ComparisonView &view = window->myView().info().comparison();
    ComparisonTable &cells = view.table();

    void SetUp() override
    {
        SampleWindow::SetUp();
        run(Command::selectComparisonTab);
        ASSERT_TRUE(shows(u"matroska.mkv movie.mp4 tone.wav"_s));
    }
    bool shows(const QString &names) const
    {
        return test::spinUntil([&] { return columns(view) == names; });
    }
    static QString columns(const ComparisonView &of)
    {
        QStringList names;
        for (int column = 1; column < of.content().columnCount(); ++column)
            names.append(of.content().headerData(column, Qt::Horizontal).toString());
        return names.join(u' ');
    }
    void select(const QString &section, const QString &name, int file) const
    {
        const auto isMeant = [&](const ComparisonRow &row) {
            return row.section == section && !row.isHeading() && row.values.front() == name;
        };
        int row = 0;
        while (view.content().rowAt(row) && !isMeant(*view.content().rowAt(row)))
            ++row;
        ASSERT_TRUE(view.content().rowAt(row)) << name.toStdString();
        cells.setCurrentIndex(view.content().index(row, ComparisonController::columnOfFile(file)));
    }
    /// What the view says of the files that it does not show; "" when it says nothing.
    QString note() const
    {
        for (const QLabel *label : view.findChildren<QLabel *>()) {
            if (label->isVisible() && label->text().contains(u" files"_s))
                return label->text();
        }
        return {};
    }
};

} // namespace

TEST_F(ComparisonWindow, LeadsToTheParameterInItsFile)
{
    EXPECT_EQ(window->comparisonSelectionInfo(), nullptr);
    select(u"Audio"_s, u"Format"_s, 2);
    EXPECT_TRUE(canRun(Command::showStream));
    ASSERT_TRUE(window->comparisonSelectionInfo());
    EXPECT_EQ(window->comparisonSelectionInfo()->values.value(3), u"PCM"_s);
    QTest::keyClick(&cells, Qt::Key_Return);
    EXPECT_EQ(window->currentTab(), Tab::Extended);
    EXPECT_EQ(window->comparisonSelectionInfo(), nullptr) << "it is not looked at";
    EXPECT_TRUE(window->worker().currentFilePath()->endsWith(u"tone.wav"_s));
    const ExtendedOutline &tree = window->myView().info().outline();
    ASSERT_TRUE(tree.selectedItem());
    EXPECT_EQ(tree.selectedItem()->extValue(), u"Format: PCM"_s);
    EXPECT_EQ(tree.content().itemAt(tree.currentIndex().parent())->extValue(), u"Audio"_s);
}

TEST_F(ComparisonWindow, ClosesColumnsAndSaysWhatIsMissing)
{
    EXPECT_EQ(note(), QString());
    select(u"File"_s, u"Name"_s, 0);
    run(Command::closeColumn);
    ASSERT_TRUE(shows(u"movie.mp4 tone.wav"_s));
    EXPECT_EQ(note(), u"2 of 3 files; 1 closed"_s);
    application.session().settings.set(Setting::compareFilesLimit, 1);
    ASSERT_TRUE(shows(u"movie.mp4"_s));
    EXPECT_TRUE(note().startsWith(u"1 of 3 files; 1 closed"_s) && note().contains(u"preferences"_s))
        << note().toStdString();
    application.session().settings.set(Setting::compareFilesLimit, 70);
    for (QAbstractButton *button : view.findChildren<QAbstractButton *>()) {
        if (button->isVisible() && button->text().contains(u"Closed"_s))
            button->click();
    }
    EXPECT_TRUE(shows(u"matroska.mkv movie.mp4 tone.wav"_s));
    EXPECT_EQ(note(), QString());
}

TEST_F(ComparisonWindow, ColumnsAreMovedAndMarkedByTheKeyboard)
{
    select(u"File"_s, u"Name"_s, 2);
    run(Command::makeReference);
    EXPECT_TRUE(window->commands().action(Command::makeReference)->isChecked());
    run(Command::moveColumnBackward);
    run(Command::moveColumnBackward);
    run(Command::moveColumnBackward);
    EXPECT_EQ(columns(view), u"tone.wav matroska.mkv movie.mp4"_s);
    EXPECT_EQ(view.content().referenceFile(), 0) << "it goes along";
    EXPECT_EQ(cells.currentFile(), 0);
    window->files().processAdditionalFiles({test::sample(u"photo.jpg"_s)});
    EXPECT_TRUE(shows(u"tone.wav matroska.mkv movie.mp4 photo.jpg"_s));
    run(Command::makeReference);
    EXPECT_FALSE(view.content().referenceFile());
}

TEST_F(ComparisonWindow, CopiesRowsAndFindsText)
{
    select(u"File"_s, u"Name"_s, 0);
    cells.setFocus();
    ASSERT_TRUE(spinUntil([this] { return canRun(Command::copy); }));
    run(Command::copy);
    const QMimeData *copied = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->html(),
              u"<table cellspacing=0><tr><td>Name</td><td>matroska.mkv</td><td>movie.mp4</td>"
              "<td>tone.wav</td></tr></table>"_s);
    EXPECT_TRUE(copied->text().contains(u"movie.mp4"_s));

    run(Command::performExtFind);
    auto *line = view.findChild<QLineEdit *>();
    ASSERT_TRUE(line && line->isVisible());
    line->setText(u"pcm"_s);
    EXPECT_TRUE(cells.currentIndex().data().toString().contains(u"pcm"_s, Qt::CaseInsensitive));
    EXPECT_EQ(view.content().fileOfColumn(cells.currentIndex().column()), 2);
    line->setText(u"no such text"_s);
    const auto labels = view.findChildren<QLabel *>();
    EXPECT_TRUE(std::ranges::any_of(
        labels, [](const QLabel *label) { return label->isVisible() && label->text() == u"Not found"_s; }));
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_FALSE(line->isVisible());
    EXPECT_TRUE(spinUntil([this] { return cells.hasFocus(); }));
}

TEST_F(ComparisonWindow, RemembersWhichRowsAreShown)
{
    const int all = view.content().rowCount();
    for (QAbstractButton *button : view.findChildren<QAbstractButton *>()) {
        if (button->text() == u"E&qual"_s)
            button->click();
    }
    EXPECT_LT(view.content().rowCount(), all);
    EXPECT_EQ(settings.integer(Setting::extComparisonRows), int(ComparisonFilter::Equal));
    EXPECT_EQ(ComparisonView(application.session().settings).content().filter(), ComparisonFilter::Equal);
}

TEST_F(ComparisonWindow, SelectedFilesTakeTheirRecordsToAWindowOfTheirOwn)
{
    window->files().selection().select(
        {window->files().arranged().index(1, 0), window->files().arranged().index(2, 0)},
        QItemSelectionModel::ClearAndSelect);
    QApplication::processEvents();
    const QuorvinDataPtr record = window->files().arranged().fileAt(1)->quorvinData();
    run(Command::compareExtendedInWindow);
    ASSERT_EQ(application.windows().size(), 2U);
    MainWindowController *other = application.windows().back();
    EXPECT_EQ(other->currentTab(), Tab::Comparison);
    EXPECT_TRUE(other->worker().processingIsDone()) << "nothing is read";
    ASSERT_EQ(other->files().filelist().size(), 2U);
    EXPECT_EQ(other->files().filelist()[0]->quorvinData(), record);
    const ComparisonView &own = other->myView().info().comparison();
    EXPECT_TRUE(spinUntil([&] { return columns(own) == u"movie.mp4 tone.wav"_s; }));
    EXPECT_EQ(own.content().filter(), ComparisonFilter::All);
    other->files().removeSelectedItems();
    EXPECT_EQ(window->files().filelist().size(), 3U) << "it is another list";
}

TEST_F(ComparisonWindow, IsExportedAsItIsShown)
{
    run(Command::exportComparison);
    auto *sheet = window->findChild<ComparisonExportSheet *>();
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->format(), u"csv"_s);
    sheet->accept();
    auto *dialog = window->findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(dialog->selectedFiles().value(0).endsWith(u"/Quorvin Comparison.csv"_s));
    const QString path = folder / u"out.csv"_s;
    Q_EMIT dialog->fileSelected(path);
    ASSERT_TRUE(spinUntil([&] { return QFile::exists(path); }));
    EXPECT_EQ(test::contentOf(path), QByteArray("\xef\xbb\xbf") + view.content().csvExportString().toUtf8());
    dialog->close();
    ASSERT_TRUE(spinUntil([this] { return canRun(Command::exportComparison); }));

    run(Command::exportComparison);
    window->findChildren<ComparisonExportSheet *>().last()->accept();
    Q_EMIT window->findChildren<QFileDialog *>().last()->fileSelected(u"/none/out.csv"_s);
    const auto told = [this] { return window->findChild<QMessageBox *>(); };
    ASSERT_TRUE(spinUntil([&] { return told() != nullptr; }));
    EXPECT_TRUE(told()->informativeText().contains(u"/none"_s)) << told()->informativeText().toStdString();
}

} // namespace quorvin
